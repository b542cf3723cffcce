"""The Python package as its users meet it."""

import ast
import datetime
import json
import pathlib
import pickle
import subprocess
import threading
from collections.abc import Mapping

import numpy
import pytest

import ormo_nitf


def test_headers_and_tres_are_mappings_of_fields(sample):
    with ormo_nitf.open(sample) as file:
        assert file.version == "NITF02.10"
        assert file.path == str(sample)
        assert file.size == sample.stat().st_size
        assert file.header.kind == "header"
        assert [segment.name for segment in file.segments] == ["image:0", "graphic:0", "text:0", "des:0"]
        image = file.images[0]
        assert isinstance(image, Mapping) and isinstance(image.tres[0], Mapping)
        assert isinstance(file.segments[0], ormo_nitf.Image)
        assert list(image)[:3] == ["IM", "IID1", "IDATIM"] and len(image) == len(image.keys())
        assert dict(image.items())["NROWS"] == image["NROWS"] == "00000128"
        assert image.get("NOSUCH") is None and "NOSUCH" not in image and 7 not in image
        with pytest.raises(KeyError, match="NOSUCH"):
            image["NOSUCH"]
        assert image.tres["USE00A"].long_name == "Exploitation Usability"
        assert image.tres.get("NOSUCH") is None and "USE00A" in image.tres
        with pytest.raises(KeyError):
            image.tres["NOSUCH"]
        assert file.segments[2].data().startswith(b"This") or file.segments[2].data()


def test_a_field_is_its_text_and_has_value_and_info(sample):
    image = ormo_nitf.open(sample).images[0]
    sun = image.tres["USE00A"]["SUN_EL"]
    assert sun == sun.raw.decode() and sun.value == float(sun)
    assert sun.info.unit == "deg" and sun.info.width == 5 and sun.info.long_name
    assert image["NROWS"].value == 128
    assert image["IREP"] == "MONO" and image["IREP"].raw == b"MONO    "
    assert image["IC"].meaning == "not compressed (NC)"
    assert image["TGTID"].value is None and image["TGTID"] == ""
    assert image["IDATIM"].value == datetime.datetime(2026, 6, 14, 9, 30, 42, tzinfo=datetime.timezone.utc)
    assert ormo_nitf.open(sample).header["FBKGC"].value == b"\0\0@"
    assert pickle.loads(pickle.dumps(sun)) == str(sun)


def test_values_are_those_of_the_program(corpus, program):
    paths = sorted(path for path in corpus.iterdir() if path.suffix.lower() in (".ntf", ".nitf"))[:40]
    run = subprocess.run([program, "json", "--typed", *paths], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    compared = 0
    for line in run.stdout.splitlines():
        told = json.loads(line)
        if "segments" not in told:
            continue
        with ormo_nitf.open(told["file"]) as file:
            for segment, expected in zip([file.header, *file.segments], told["segments"], strict=True):
                records = [(segment, expected), *zip(segment.tres, expected["tres"], strict=True)]
                for record, fields in records:
                    for name, value in fields["fields"].items():
                        found = record[name].value
                        if isinstance(found, datetime.datetime):
                            found = found.strftime("%Y-%m-%dT%H:%M:%SZ")
                        elif isinstance(found, datetime.date):
                            found = found.isoformat()
                        elif isinstance(found, bytes) or isinstance(value, dict):
                            continue
                        assert found == value, (told["file"], name)
                        compared += 1
    assert compared > 2000


def test_footprints_are_geometries(sample):
    image = ormo_nitf.open(sample).images[0]
    assert image.footprint.source == "BLOCKA"
    assert image.footprint.corners[0] == pytest.approx((58.40575, 25.48903))
    west, south, east, north = image.footprint.bounds
    assert west < east and south < north
    geometry = image.__geo_interface__["geometry"]
    assert geometry["type"] == "Polygon"
    ring = geometry["coordinates"][0]
    assert ring[0] == ring[-1] and len(ring) == 5
    assert all(west <= longitude <= east and south <= latitude <= north for longitude, latitude in ring)
    assert ormo_nitf.open(sample).__geo_interface__["features"] == [image.__geo_interface__]
    json.dumps(image.__geo_interface__)


def test_rpc_and_properties(sample):
    image = ormo_nitf.open(sample).images[0]
    assert image.rpc.tag == "RPC00B" and len(image.rpc.line_numerator) == 20
    assert image.rpc.offsets["latitude"] == image.tres["RPC00B"]["LAT_OFF"].value
    assert image.property("nitf.version") == "NITF02.10"
    assert image.property("sensor.model.state") is None


def test_pixels_are_arrays(sample):
    image = ormo_nitf.open(sample).images[0]
    whole = image.pixels()
    assert whole.shape == (1, 128, 128) and whole.dtype == image.dtype == numpy.uint8
    assert whole.tobytes() == sample.read_bytes()[image.data_offset : image.data_offset + image.data_size]
    assert (image.pixels(0) == whole[0]).all()
    assert (image.pixels(0, window=(5, 7, 11, 13)) == whole[0, 5:16, 7:20]).all()
    assert (image.pixels(step=10) == whole[:, ::10, ::10]).all()
    for arguments, options in [((1,), {}), ((-1,), {}), ((0,), {"window": (0, 0, 129, 1)})]:
        with pytest.raises(ormo_nitf.NitfError):
            image.pixels(*arguments, **options)
    for options in ({"step": 0}, {"window": (0, 0, 0, 1)}, {"step": 2, "window": (0, 0, 2, 2)}):
        with pytest.raises(ValueError):
            image.pixels(**options)


def test_compressed_pixels_come_from_the_gdal_library(corpus):
    image = ormo_nitf.open(corpus / "046_512x512_s_8_3_rgb_j2c.ntf").images[0]
    pixels = image.pixels()
    assert pixels.shape == (3, 512, 512) and pixels.std() > 1


def test_documents_and_findings(sample, tmp_path):
    file = ormo_nitf.open(sample)
    assert file.xml().startswith("<?xml") and "<NITFFileHeader>" in file.xml()
    damaged = tmp_path / "damaged.ntf"
    damaged.write_bytes(sample.read_bytes().replace(b"MONO    ", b"NOSUCH  ", 1))
    finding = ormo_nitf.open(damaged).validate()[0]
    assert (finding.level, finding.field, finding.segment, finding.index) == ("error", "IREP", "ImageSegment", 0)
    assert finding.offset > 436 and finding.value == "NOSUCH  " and "MONO" in finding.allowed
    assert str(finding) in repr(finding) and finding.sentence in str(finding)


def test_what_cannot_be_opened_says_why(sample, tmp_path):
    with pytest.raises(FileNotFoundError):
        ormo_nitf.open(tmp_path / "absent.ntf")
    with pytest.raises(IsADirectoryError):
        ormo_nitf.open(tmp_path)
    text = tmp_path / "text.ntf"
    text.write_text("no such file")
    with pytest.raises(ormo_nitf.NitfError, match="not a NITF"):
        ormo_nitf.open(text)
    short = tmp_path / "short.ntf"
    short.write_bytes(sample.read_bytes()[:3000])
    with pytest.raises(ormo_nitf.NitfError, match="beyond the end of the file") as caught:
        ormo_nitf.open(str(short))
    assert any(finding.level == "error" for finding in caught.value.findings)
    salvaged = ormo_nitf.open(short, salvage=True)
    assert salvaged.images[0].is_readable and not salvaged.segments[1].is_readable
    assert len(salvaged.segments[1]) == 0 and salvaged.segments[1].tres == []
    assert salvaged.findings
    with pytest.raises(ormo_nitf.NitfError):
        ormo_nitf.from_bytes(b"")
    odd = tmp_path / "name of \udce9.ntf"
    odd.write_bytes(sample.read_bytes())
    assert ormo_nitf.open(odd).path == str(odd)


def test_a_closed_file_answers_no_more_but_what_was_taken_does(sample):
    with ormo_nitf.open(sample) as file:
        image = file.images[0]
    with pytest.raises(ValueError, match="closed"):
        file.images
    assert image["NROWS"].value == 128 and image.pixels(0).any()
    assert ormo_nitf.from_bytes(sample.read_bytes(), "name").path == "name"


def test_scan_gives_flat_rows_in_order(sample, tmp_path):
    absent = tmp_path / "absent.ntf"
    paths = [sample, absent] * 30
    fields = ["image.NROWS", "image:0.IREP", "USE00A.SUN_EL", "image:1.NROWS", "NOSUCH.FIELD", "header.FTITLE"]
    rows = list(ormo_nitf.scan(paths, fields, jobs=3))
    assert rows == list(ormo_nitf.scan(paths, fields))
    assert [row["path"] for row in rows] == [str(path) for path in paths]
    assert rows[0] == {
        "path": str(sample),
        "error": None,
        "image.NROWS": 128,
        "image:0.IREP": "MONO",
        "USE00A.SUN_EL": ormo_nitf.open(sample).images[0].tres["USE00A"]["SUN_EL"].value,
        "image:1.NROWS": None,
        "NOSUCH.FIELD": None,
        "header.FTITLE": "Sample of an image chip",
    }
    assert "cannot be opened" in rows[1]["error"] and rows[1]["image.NROWS"] is None


def test_threads_ask_one_file(sample):
    file = ormo_nitf.open(sample)
    expected = (file.images[0].pixels().sum(), len(file.xml()), len(file.validate()))
    found = []

    def ask():
        for _ in range(20):
            found.append((file.images[0].pixels().sum(), len(file.xml()), len(file.validate())))

    threads = [threading.Thread(target=ask) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert found == [expected] * 80


def test_stubs_name_what_there_is():
    stubs = ast.parse((pathlib.Path(ormo_nitf.__file__).parent / "__init__.pyi").read_text())
    classes = {node.name: node for node in stubs.body if isinstance(node, ast.ClassDef)}
    functions = {node.name for node in stubs.body if isinstance(node, ast.FunctionDef)}
    assert set(classes) | functions == set(ormo_nitf.__all__)
    for name, node in classes.items():
        told = {part.target.id for part in node.body if isinstance(part, ast.AnnAssign)}
        told |= {part.name for part in node.body if isinstance(part, ast.FunctionDef)}
        cls = getattr(ormo_nitf, name)
        own = {member for member in dir(cls) if not member.startswith("_")}
        own -= {member for base in (str, list, Exception, dict) for member in dir(base)} - {"get"}
        missing = own - told - {"keys", "values", "items", "get"}
        if name == "Image":
            missing -= set(dir(ormo_nitf.Segment))
        assert not missing, name
        instance = {"findings"} if name == "NitfError" else set()
        assert told - instance <= set(dir(cls)), name
