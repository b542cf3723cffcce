"""The archive work on a small cluster on this machine: every file once, whatever dies."""

import os
import pathlib
import shutil
import signal
import sqlite3
import stat
import subprocess
import sys

import pytest

from ormo_nitf import archive

distributed = pytest.importorskip("distributed")


@pytest.fixture(scope="module")
def client():
    import dask

    with dask.config.set({"distributed.scheduler.allowed-failures": 1}):
        with distributed.LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=None) as cluster:
            with distributed.Client(cluster) as client:
                yield client


@pytest.fixture
def folder(tmp_path, sample):
    """Sixty files: the sample by many names, damaged ones, one whose name is no UTF-8, and one that is no NITF file."""
    folder = tmp_path / "archive"
    for index in range(56):
        path = folder / f"{index % 4}" / f"{index:02}.ntf"
        path.parent.mkdir(parents=True, exist_ok=True)
        os.link(sample, path)
    for size in (100, 3000):
        (folder / f"short{size}.ntf").write_bytes(sample.read_bytes()[:size])
    os.link(sample, os.fsencode(folder) + b"/name \xe9.ntf")
    (folder / "readme.txt").write_text("no image")
    return folder


def paths_of(folder):
    return sorted(os.fsencode(path) for path in folder.rglob("*") if path.is_file())


def wrapper(path, program, condition):
    """A program that is the real one but when a path on standard input meets a condition of the shell."""
    path.write_text(f'#!/bin/sh\ninput=$(mktemp)\ncat >"$input"\n{condition}\n"{program}" "$@" <"$input"\ncode=$?\n'
                    'rm "$input"\nexit $code\n')
    path.chmod(path.stat().st_mode | stat.S_IXUSR)
    return str(path)


def collect(client, reader, paths, size, during=lambda: None):
    """The records of a run by path, each of which came once."""
    import json

    found = {}

    def take(records):
        for line in records:
            record = json.loads(line)
            assert record["path"] not in found
            found[record["path"]] = record
        during()

    run = archive.Run(client, reader, take)
    run.work(archive.batches(paths, size))
    assert run.counts["files"] == len(paths) == len(found)
    return found, run.counts


def test_every_file_has_one_record_though_a_worker_is_killed(client, folder, program, tmp_path):
    pids = list(client.run(os.getpid).values())

    def kill():
        if pids:
            os.kill(pids.pop(), signal.SIGKILL)
            pids.clear()

    slow = wrapper(tmp_path / "slow", program, "sleep 0.2")
    found, _ = collect(client, archive.Reader(slow), paths_of(folder), 6, kill)
    assert not pids
    told = {status: sum(record["status"] == status for record in found.values()) for status in ("read", "refused", "no NITF")}
    assert told == {"read": 57, "refused": 2, "no NITF": 1}


def test_a_poisoned_batch_is_halved_until_the_bad_file_stands_alone(client, folder, program, tmp_path):
    poison = wrapper(tmp_path / "poison", program, 'if grep -qz /13.ntf "$input"; then kill -9 $$; fi')
    found, counts = collect(client, archive.Reader(poison), paths_of(folder), 16)
    bad = [record for record in found.values() if record["status"] == "crashed"]
    assert [pathlib.Path(record["path"]).name for record in bad] == ["13.ntf"]
    assert bad[0]["size"] > 0 and "No worker could read the file" in bad[0]["error"]
    assert sum(record["status"] == "read" for record in found.values()) == 56
    assert 5 <= counts["batches failed"] <= 6


def test_a_worker_without_the_program_ends_the_run(client, folder):
    with pytest.raises(archive.Misconfigured, match="No such file"):
        collect(client, archive.Reader("/no/such/program"), paths_of(folder), 30)
    with pytest.raises(archive.Misconfigured, match="--no-such-option"):
        collect(client, archive.Reader(os.environ["ORMO_NITF"], ("--no-such-option",)), paths_of(folder), 30)


def test_the_command_makes_and_continues_a_catalogue(client, folder, program, tmp_path, capfd):
    out = tmp_path / "archive.gpkg"
    words = ["-r", str(folder), "-o", str(out), "--program", program, "--batch", "10"]
    assert archive.main([*words, "--scheduler", client.scheduler.address]) == 1, "files were refused"
    assert "60 files" in capfd.readouterr().err
    with sqlite3.connect(out) as catalogue:
        found = [row[0] for row in catalogue.execute("SELECT ifnull(path_bytes, path) FROM files")]
        expected = [path for path in paths_of(folder) if not path.endswith(b".txt")]
        assert sorted(path if isinstance(path, bytes) else path.encode() for path in found) == expected
        assert catalogue.execute("SELECT count(*) FROM images").fetchone() == (57,)

    os.link(folder / "0" / "00.ntf", folder / "new.ntf")
    shutil.copyfile(folder / "0" / "00.ntf", folder / "short100.ntf")
    # Files that are no NITF files have no row, and are looked at again.
    assert archive.main([*words, "--scheduler", client.scheduler.address]) == 0
    assert "3 files" in capfd.readouterr().err
    with sqlite3.connect(out) as catalogue:
        assert catalogue.execute("SELECT count(*), count(DISTINCT path) FROM files").fetchone() == (60, 60)
        assert catalogue.execute("PRAGMA integrity_check").fetchone() == ("ok",)


def test_the_record_of_a_lost_file_is_taken_by_the_catalogue(folder, program, tmp_path):
    out = tmp_path / "archive.gpkg"
    writer = archive.Writer(program, str(out))
    bad = os.fsencode(folder) + b"/name \xe9.ntf"
    writer.take([archive.record_of_lost(bad, "reason"), archive.record_of_lost(b"/no/such/file", "reason")])
    assert writer.close() == 1
    with sqlite3.connect(out) as catalogue:
        assert catalogue.execute("SELECT path, path_bytes, status, error, size FROM files").fetchall() == [
            (f"{folder}/name \\xE9.ntf", bad, "crashed", "reason", os.stat(bad).st_size)
        ]


def test_the_module_needs_neither_compiled_code_nor_a_display(tmp_path):
    package = tmp_path / "ormo_nitf"
    package.mkdir()
    for path in pathlib.Path(archive.__file__).parent.glob("*.py"):
        shutil.copy(path, package)
    run = subprocess.run(
        [sys.executable, "-m", "ormo_nitf.archive", "--help"], cwd=tmp_path, env={"PATH": os.environ["PATH"]}, text=True,
        stdout=subprocess.PIPE, check=True,
    )
    assert "--scheduler" in run.stdout
