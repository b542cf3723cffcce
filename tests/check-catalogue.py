#!/usr/bin/env python3
"""The catalogue of an archive as a user meets it: every file once, whatever happens to the run or to a file.

check-catalogue.py PROGRAM SAMPLE SOURCES WORK [CORPUS]: a line for each check that fails, exit code 1 when there are any.
"""
import csv
import fcntl
import io
import json
import os
import random
import re
import resource
import shutil
import signal
import sqlite3
import subprocess
import sys
import time

PROGRAM, SAMPLE, SOURCES, WORK = sys.argv[1:5]
CORPUS = sys.argv[5] if len(sys.argv) > 5 and os.path.isdir(sys.argv[5]) else None
CHILDREN = {"images": "image_count", "tres": "tre_count"}
failed = 0


def check(good, what):
    global failed
    if not good:
        failed += 1
        print("FAILED: catalogue:", what)


def run(*words, code=0, **options):
    done = subprocess.run([PROGRAM, "catalogue", *words], capture_output=True, **options)
    check(code is None or done.returncode == code, f"exit code {done.returncode} in place of {code}: {words}: {done.stderr[-400:]}")
    return done.stdout, done.stderr.decode(errors="replace")


def rows(catalogue, sql):
    with sqlite3.connect(f"file:{catalogue}?mode=rw", uri=True) as database:
        return database.execute(sql).fetchall()


def contents(catalogue):
    """All that a catalogue says of each file, without its keys."""
    with sqlite3.connect(catalogue) as database:
        database.row_factory = sqlite3.Row
        said = {}
        for table in ("files", "images", "segments", "tres", "findings"):
            key = "id" if table == "files" else "file_id"
            for row in database.execute(f"SELECT f.path AS of, t.* FROM {table} t JOIN files f ON f.id = t.{key}"):
                told = {name: row[name] for name in row.keys() if name not in ("of", "id", "file_id")}
                said.setdefault(row["of"], []).append((table, str(told)))
    database.close()
    return {path: sorted(told) for path, told in said.items()}


def is_whole(catalogue, what):
    """A catalogue as it must be at any moment."""
    check(rows(catalogue, "PRAGMA integrity_check") == [("ok",)], f"{what}: the database is damaged")
    paths = rows(catalogue, "SELECT path FROM files")
    check(len(paths) == len(set(paths)), f"{what}: a file stands there twice")
    for table, count in CHILDREN.items():
        bad = rows(catalogue, f"SELECT path FROM files WHERE status = 'read' AND {count} <> "
                              f"(SELECT count(*) FROM {table} WHERE file_id = files.id)")
        check(not bad, f"{what}: {table} of {bad[:3]} are not all there")
    for table in ("images", "segments", "tres", "findings"):
        orphans = rows(catalogue, f"SELECT count(*) FROM {table} WHERE file_id NOT IN (SELECT id FROM files)")
        check(orphans == [(0,)], f"{what}: {table} of no file")
    if shutil.which("ogrinfo"):
        seen = subprocess.run(["ogrinfo", "-ro", "-so", catalogue, "images"], capture_output=True, text=True)
        check(seen.returncode == 0 and "ERROR" not in seen.stderr, f"{what}: ogrinfo refuses it: {seen.stderr}")


def link(source, target):
    os.makedirs(os.path.dirname(target), exist_ok=True)
    shutil.copy2(source, target)


def archive(name, copies):
    directory = os.path.join(WORK, name)
    sources = [SAMPLE] + ([os.path.join(CORPUS, file) for file in sorted(os.listdir(CORPUS))
                           if os.path.getsize(os.path.join(CORPUS, file)) < 40000] if CORPUS else [])
    for copy in range(copies):
        for file in sources:
            link(file, os.path.join(directory, str(copy), "ours.ntf" if file == SAMPLE else os.path.basename(file)))
    return directory


def nitf_files(directory):
    """The NITF files below a directory, by their first bytes."""
    found = []
    for place, _, names in os.walk(directory):
        for name in names:
            with open(os.path.join(place, name), "rb") as file:
                if file.read(4) in (b"NITF", b"NSIF"):
                    found.append(os.path.join(place, name))
    return sorted(found)


def check_contents():
    directory = archive("contents", 1 if CORPUS else 3)
    if CORPUS:
        link(os.path.join(CORPUS, "0000M033.GN3"), directory + "/0000M033.GN3")
        link(os.path.join(CORPUS, "ff_grey16bit_uncompressed.nitf"), directory + "/pan.nitf")
    catalogue = os.path.join(WORK, "contents.gpkg")
    run("-r", directory, "-j", "2", "-o", catalogue, code=1 if CORPUS else 0)
    is_whole(catalogue, "a first run")
    files = nitf_files(directory)
    check([path for (path,) in rows(catalogue, "SELECT path FROM files ORDER BY path")] == files, "not every file once")
    told = {}
    for line in subprocess.run([PROGRAM, "json", *files], capture_output=True).stdout.splitlines():
        document = json.loads(line)
        told[document["file"]] = document
    for path, number, status, error in rows(catalogue, "SELECT path, id, status, error FROM files"):
        document = told[path]
        if "error" in document:
            check(status == "refused" and error, f"{path} is not refused with its error")
            check(rows(catalogue, f"SELECT count(*) FROM findings WHERE file_id = {number} AND level <> 'WARN'")[0][0] > 0,
                  f"{path} is refused without a finding")
            continue
        segments = rows(catalogue, f"SELECT kind, segment, header_offset, data_offset, data_size FROM segments "
                                   f"WHERE file_id = {number} ORDER BY header_offset")
        wanted = [(s["kind"].lower(), s["index"], s["header_offset"], s["data_offset"], s["data_size"])
                  for s in document["segments"][1:]]
        check([row[1:] for row in segments] == [row[1:] for row in wanted], f"other segments than json: {path}")
        tags = sorted(tre["tag"].strip() for segment in document["segments"] for tre in segment["tres"])
        check(sorted(tag for (tag,) in rows(catalogue, f"SELECT tag FROM tres WHERE file_id = {number}")) == tags,
              f"other TREs than json: {path}")
    shown = subprocess.run([PROGRAM, "validate", "--json", SAMPLE], capture_output=True).stdout.count(b"\n")
    check(rows(catalogue, "SELECT count(*) FROM findings JOIN files ON files.id = file_id WHERE path LIKE "
                          "'%/0/ours.ntf'")[0][0] == shown, "other findings than validate")

    link(SAMPLE, WORK + "/own/one.ntf")
    _, said = run("-r", WORK + "/own", "-o", WORK + "/own/archive.gpkg")
    check("1 file: 1 read" in said, "the catalogue takes itself for a file of the archive: " + said)

    _, said = run("-r", directory, "-o", catalogue)
    check(f"{len(files)} unchanged" in said and " read" not in said, "files that did not change are read again: " + said)
    before = contents(catalogue)
    os.utime(files[0], ns=(1, 1))
    os.remove(files[1])
    link(SAMPLE, directory + "/new/one.ntf")
    _, said = run("-r", directory, "-o", catalogue)
    check(": 2 read" in said.replace("1 no NITF, ", "") and "1 file of the catalogue" in said, "not the new and the changed one: " + said)
    check(files[1] in contents(catalogue), "a file is taken out unasked")
    run("-r", directory, "-o", catalogue, "--prune")
    after = contents(catalogue)
    check(files[1] not in after and directory + "/new/one.ntf" in after, "--prune leaves what is gone")
    check(all(before[path] == after[path] for path in files[2:]), "files that did not change are told otherwise")
    is_whole(catalogue, "a run after changes")

    # Records, and the records in a catalogue, say the same.
    lines, _ = run("-r", directory, "-f", "ndjson", code=1 if CORPUS else 0)
    again = os.path.join(WORK, "records.gpkg")
    run("--records", "-", "-o", again, input=lines, code=1 if CORPUS else 0)
    run("--records", "-", "-o", again, input=lines, code=1 if CORPUS else 0)
    check(contents(again) == after, "records give another catalogue")
    run("--records", "-", "-o", again, input=b"{}\nnonsense\n", code=2)
    is_whole(again, "records")
    images, _ = run("-r", directory, "-f", "csv", "--table", "images", code=1 if CORPUS else 0)
    table = list(csv.DictReader(io.StringIO(images.decode())))
    check([(row["path"], row["rows"]) for row in table] ==
          [(path, str(count)) for path, count in rows(catalogue, "SELECT path, rows FROM images JOIN files ON "
                                                     "files.id = file_id ORDER BY path, image")], "CSV is another table")
    sample = next(row for row in table if row["path"].endswith("/ours.ntf"))
    check(sample["footprint"].startswith("POLYGON((25.48903 58.40575,"), "no footprint in CSV: " + sample["footprint"])
    return directory, catalogue


def check_documents(directory, catalogue):
    page, _ = run("--columns")
    with open(SOURCES + "/docs/catalogue.md", "rb") as file:
        check(file.read() == page, "docs/catalogue.md is not what catalogue --columns prints")
    with open(SOURCES + "/docs/archive.md") as file:
        questions = [statement for block in re.findall(r"```sql\n(.*?)```", file.read(), re.S)
                     for statement in block.split(";") if statement.strip()]
    check(len(questions) > 5, "docs/archive.md asks nothing")
    for question in questions:
        try:
            rows(catalogue, question)
        except sqlite3.Error as error:
            check(False, f"{error}: {question}")
    import jsonschema
    with open(SOURCES + "/tests/data/stac/item.schema.json") as file:
        schema = json.load(file)
    jsonschema.Draft7Validator.check_schema(schema)
    validator = jsonschema.Draft7Validator(schema)
    items, _ = run("-r", directory, "-f", "stac", code=1 if CORPUS else 0)
    items = [json.loads(line) for line in items.splitlines()]
    for item in items:
        for error in validator.iter_errors(item):
            check(False, f"{item['id']} is no item of STAC: {error.message} at {list(error.path)}")
    check(len({item["id"] for item in items}) == len(items) == rows(catalogue, "SELECT count(*) FROM images")[0][0],
          "not an item for each image")
    sample = next(item for item in items if item["assets"]["data"]["href"].endswith("/ours.ntf"))
    check(sample["properties"]["proj:shape"] == [128, 128] and sample["properties"]["datetime"] == "2026-06-14T09:30:42Z",
          "the item of the sample says something else")
    if CORPUS:
        pan = next(item for item in items if item["assets"]["data"]["href"].endswith("/pan.nitf"))["properties"]
        check(pan.get("view:sun_elevation") == 53.0 and abs(pan["gsd"] - 1.00076) < 1e-9, f"no sun, no distance: {pan}")
        across = next(item for item in items if item["assets"]["data"]["href"].endswith(".GN3"))
        check(across["geometry"]["type"] == "MultiPolygon" and across["bbox"][0] > across["bbox"][2],
              "a footprint across the 180th meridian is in one piece")


def check_footprints():
    """The corners by GDAL against those of the footprints."""
    if not CORPUS or not shutil.which("gdalinfo"):
        print("catalogue: no gdalinfo or no corpus, footprints were not compared")
        return
    lines, _ = run("-r", CORPUS, "-f", "ndjson", code=1)
    compared = 0
    for record in map(json.loads, lines.splitlines()):
        for image in record.get("images", []):
            # The corners of this file's BLOCKA are not those of its IGEOLO, and GDAL takes the latter.
            if image["footprint"] is None or record["path"].endswith("fake_nsif.ntf"):
                continue
            info = subprocess.run(["gdalinfo", "-json", f"NITF_IM:{image['image']}:{record['path']}"],
                                  capture_output=True, text=True)
            info = json.loads(info.stdout) if info.returncode == 0 else {}
            columns, height = image["columns"], image["rows"]
            # Of a frame of a chart GDAL takes the corners for those of the outer pixels' edges.
            edge = 0.0 if any(tre["tag"] == "RPFIMG" for tre in record["tres"]) else 0.5
            if "gcps" in info and info["gcps"]["coordinateSystem"]["wkt"].startswith('GEOGCRS["WGS 84"'):
                corners = [(gcp["x"], gcp["y"]) for gcp in info["gcps"]["gcpList"]]
            elif "geoTransform" in info and info["coordinateSystem"]["wkt"].startswith('GEOGCRS["WGS 84"'):
                a, b, c, d, e, f = info["geoTransform"]
                corners = [(a + b * x + c * y, d + e * x + f * y) for x, y in
                           ((edge, edge), (columns - edge, edge), (columns - edge, height - edge), (edge, height - edge))]
            else:
                continue
            parts = image["footprint"]["coordinates"]
            ours = [point for part in (parts if image["footprint"]["type"] == "MultiPolygon" else [parts]) for point in part[0]]
            # GDAL lays a grid through the corners when it nearly fits; a corner of IGEOLO has whole seconds.
            near = all(min(max(abs((x - u + 180) % 360 - 180), abs(y - v)) for u, v in ours) < 1 / 3600 for x, y in corners)
            check(near, f"GDAL has another footprint of {record['path']}: {corners}, here {ours}")
            compared += 1
    check(compared >= 7, f"only {compared} footprints were compared")
    print(f"catalogue: {compared} footprints are GDAL's")


def check_kills():
    directory = archive("kills", 20 if CORPUS else 500)
    whole = os.path.join(WORK, "whole.gpkg")
    run("-r", directory, "-j", "2", "-o", whole, code=1 if CORPUS else 0)
    catalogue = os.path.join(WORK, "killed.gpkg")
    random.seed(19)
    left = None
    for turn in range(8):
        process = subprocess.Popen([PROGRAM, "catalogue", "-r", directory, "-j", "2", "-o", catalogue],
                                   stderr=subprocess.DEVNULL)
        time.sleep(random.uniform(0.0, 0.06) * (turn + 1))
        process.send_signal(signal.SIGKILL)
        process.wait()
        if os.path.exists(catalogue):
            is_whole(catalogue, f"kill {turn}")
            count = rows(catalogue, "SELECT count(*) FROM files")[0][0]
            check(left is None or count >= left, "a killed run has lost files")
            left = count
    run("-r", directory, "-j", "2", "-o", catalogue, code=None)
    is_whole(catalogue, "the run after the kills")
    check(contents(catalogue) == contents(whole), "the run after the kills does not complete the catalogue")


FAULTY = r"""
#define _GNU_SOURCE
#include <dlfcn.h>
#include <fcntl.h>
#include <stdarg.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>
static void fault(const char* path)
{
    const char* mark = getenv("FAULTY_MARK");
    if (strstr(path, "crash-always") || (strstr(path, "crash-once") && access(mark, F_OK) != 0)) {
        if (strstr(path, "once")) close(creat(mark, 0600));
        abort();
    }
    if (strstr(path, "hang-always")) for (;;) pause();
}
#define OPEN(name) int name(const char* path, int flags, ...) { \
    va_list rest; va_start(rest, flags); int mode = va_arg(rest, int); va_end(rest); fault(path); \
    return ((int (*)(const char*, int, ...))dlsym(RTLD_NEXT, #name))(path, flags, mode); }
OPEN(open)
OPEN(open64)
"""


def check_faults():
    """A library before all others makes opening some files crash or hang."""
    library = os.path.join(WORK, "faulty.so")
    made = subprocess.run(["cc", "-shared", "-fPIC", "-w", "-x", "c", "-", "-o", library], input=FAULTY.encode())
    check(made.returncode == 0, "no compiler")
    directory = os.path.join(WORK, "faults")
    for name in ("a", "b-crash-always", "c", "d-hang-always", "e-crash-once", *(f"f{i}" for i in range(40)), "g-crash-always"):
        link(SAMPLE, f"{directory}/{name}.ntf")
    environment = {**os.environ, "LD_PRELOAD": library, "FAULTY_MARK": os.path.join(WORK, "mark")}
    catalogue = os.path.join(WORK, "faults.gpkg")
    for jobs in ("1", "3"):
        if os.path.exists(catalogue):
            os.remove(catalogue)
        run("-r", directory, "-j", jobs, "--time-limit", "2", "-o", catalogue, code=1, env=environment)
        is_whole(catalogue, "a run with crashes")
        told = {os.path.basename(path): status for path, status in rows(catalogue, "SELECT path, status FROM files")}
        wanted = {name: "crashed" if "crash-always" in name else "timed out" if "hang" in name else "read"
                  for name in os.listdir(directory)}
        check(told == wanted, f"crashes and hangs with {jobs} jobs: {[(n, told.get(n)) for n in wanted if told.get(n) != wanted[n]]}")
    errors = rows(catalogue, "SELECT error FROM files WHERE status <> 'read' ORDER BY path")
    check("Aborted" in errors[0][0] and "2 s" in errors[1][0], f"crashes have no reason: {errors}")
    _, said = run("-r", directory, "-o", catalogue)
    check("46 unchanged" in said, "what crashed is read again unasked: " + said)
    _, said = run("-r", directory, "-o", catalogue, "--retry")
    check("3 read" in said, "--retry does not read what crashed: " + said)


def check_bad_input():
    directory = os.path.join(WORK, "bad")
    names = [b"plain.ntf", b"latin-\xe9.ntf", b"line\nfeed.ntf", b"blank.ntf ", "\u00e9\u9f8d.ntf".encode(), b"\\xE9.ntf"]
    for name in names:
        link(SAMPLE, os.path.join(os.fsencode(directory), name))
    os.makedirs(directory + "/deep")
    os.symlink("..", directory + "/deep/loop")
    os.symlink("self", directory + "/deep/self")
    os.mkfifo(directory + "/fifo.ntf")
    catalogue = os.path.join(WORK, "bad.gpkg")
    run("-r", directory, "-o", catalogue)
    said = {path if isinstance(path, bytes) else os.fsencode(path)
            for (path,) in rows(catalogue, "SELECT ifnull(path_bytes, path) FROM files WHERE status = 'read'")}
    check(said == {os.path.join(os.fsencode(directory), name) for name in names}, f"names that are no UTF-8: {said}")
    _, words = run("-r", directory, "-o", catalogue)
    check(f"{len(names)} unchanged" in words, "names that are no UTF-8 are not found again: " + words)
    run("-r", directory, "-f", "stac")
    paths = b"".join(os.path.join(os.fsencode(directory), name) + b"\0" for name in names) + b"/no/such/file\0"
    lines, _ = run("--files-from", "-", "-0", "-f", "ndjson", input=paths, code=2)
    check([json.loads(line)["status"] for line in lines.splitlines()].count("read") == len(names) and
          lines.count(b"\n") == len(names) + 1, "a path has no line")
    run("-r", directory + "/nothing", "-o", catalogue, code=2)
    run("-o", catalogue, code=2)
    run("-r", directory, code=2)
    run("-r", directory, "-o", WORK + "/no/such/directory.gpkg", code=2)

    with open(catalogue + ".lock", "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        _, words = run("-r", directory, "-o", catalogue, code=2)
        check("Another run" in words, "the second of two runs is not refused clearly: " + words)
    with sqlite3.connect(catalogue) as database:
        database.execute("UPDATE catalogue SET format = format + 1")
    database.close()
    _, words = run("-r", directory, "-o", catalogue, code=2)
    check("newer version" in words, "a catalogue of a newer version is not refused clearly: " + words)
    other = os.path.join(WORK, "other.gpkg")
    shutil.copy(SAMPLE, other)
    run("-r", directory, "-o", other, code=2)
    with open(other, "rb") as left, open(SAMPLE, "rb") as right:
        check(left.read() == right.read(), "a file that is no catalogue is written to")

    def limit():
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
        resource.setrlimit(resource.RLIMIT_FSIZE, (300000, 300000))

    full = os.path.join(WORK, "full.gpkg")
    many = archive("full", 20 if CORPUS else 400)
    _, words = run("-r", many, "-o", full, code=2, preexec_fn=limit)
    check("ERROR" in words, "a full disk is not told")
    if os.path.exists(full):
        is_whole(full, "a full disk")
    run("-r", many, "-o", full, code=1 if CORPUS else 0)
    is_whole(full, "the run after a full disk")
    check(sorted(path for (path,) in rows(full, "SELECT path FROM files")) == nitf_files(many),
          "the run after a full disk does not complete the catalogue")

    os.chmod(directory + "/deep", 0)
    os.chmod(WORK, 0o755)
    if os.geteuid() == 0:
        public = WORK + "/public"
        os.makedirs(public, mode=0o777)
        os.chmod(public, 0o777)
        try:
            subprocess.run([PROGRAM, "--version"], user=65534, check=True, capture_output=True)
        except (OSError, subprocess.SubprocessError):
            print("catalogue: no other user can run the program, unreadable directories were not tried")
            return
        _, words = run("-r", directory, "-o", public + "/unreadable.gpkg", code=2, user=65534)
        catalogue = public + "/unreadable.gpkg"
    else:
        catalogue = os.path.join(WORK, "unreadable.gpkg")
        _, words = run("-r", directory, "-o", catalogue, code=2)
    check("/deep: ERROR: The directory cannot be read" in words, "an unreadable directory is not told: " + words)
    check(rows(catalogue, "SELECT count(*) FROM files") == [(len(names),)], "an unreadable directory hides the others")


try:
    found = check_contents()
    check_documents(*found)
    check_footprints()
    check_kills()
    if "ORMO_SANITIZED" not in os.environ:
        check_faults()
    check_bad_input()
finally:
    if os.path.isdir(WORK + "/bad/deep"):
        os.chmod(WORK + "/bad/deep", 0o700)
sys.exit(1 if failed else 0)
