"""A catalogue of an archive, made by many machines: the program ormo-nitf under Dask distributed.

    python3 -m ormo_nitf.archive -r /data/images -o archive.gpkg --workers 4
    python3 -m ormo_nitf.archive -r /data/images -o archive.gpkg --scheduler tcp://head:8786

The program says which files are to be read, workers run it on some hundred of them at a time, and one more of it writes
their records into the catalogue. Needs neither the compiled module nor, on the workers, this package.
"""

import argparse
import base64
import contextlib
import itertools
import json
import os
import shutil
import subprocess
import sys
import time
from collections import Counter
from dataclasses import dataclass, field

DEFAULT_BATCH = 500
AHEAD = 3  # batches that wait for each thread of a worker
GIVE_UP_AFTER = 2  # failures of a file that stands alone, each after what Dask tries by itself


class Misconfigured(Exception):
    """What no other batch and no other try can mend, such as a worker without the program."""


@dataclass(frozen=True)
class Reader:
    """Reads a batch of files with the program, on whichever machine it is called."""

    program: str = "ormo-nitf"
    options: tuple = ()
    time_limit: int = 60

    def __call__(self, paths):
        """The records of the files, a line of JSON each, in their order. Raises when there is not one for each."""
        command = [self.program, "catalogue", "--files-from", "-", "-0", "-f", "ndjson"]
        command += ["--time-limit", str(self.time_limit), *self.options]
        try:
            run = subprocess.run(
                command,
                input=b"".join(path + b"\0" for path in paths),
                stdout=subprocess.PIPE,
                stderr=subprocess.PIPE,
                timeout=60 + 2 * self.time_limit * len(paths),
            )
        except OSError as error:
            raise Misconfigured(f"{self.program}: {error.strerror}") from None
        lines = run.stdout.splitlines()
        if len(lines) == len(paths):
            return lines
        said = run.stderr.decode(errors="replace").splitlines() or ["it says nothing"]
        if not lines and run.returncode == 2:
            raise Misconfigured(said[0])
        raise RuntimeError(f"{len(lines)} of {len(paths)} records, exit code {run.returncode}: {said[-1]}")


def batches(paths, size=DEFAULT_BATCH):
    paths = iter(paths)
    while batch := list(itertools.islice(paths, size)):
        yield batch


def record_of_lost(path, error):
    """The record of a file over which every worker died."""
    text = "".join(f"\\x{ord(c) - 0xDC00:02X}" if 0xDC80 <= ord(c) < 0xDD00 else c for c in os.fsdecode(path))
    record = {"path": text, "path_bytes": None, "status": "crashed", "error": error, "size": 0, "modified_ns": 0}
    if text != os.fsdecode(path):
        record["path_bytes"] = {"base64": base64.b64encode(path).decode()}
    try:
        status = os.stat(path)
        record.update(size=status.st_size, modified_ns=status.st_mtime_ns)
    except OSError:
        record["status"] = "missing"
    return json.dumps(record).encode()


@dataclass
class Run:
    """Hands batches to the workers of a client and what they answer to `take`, each file once."""

    client: object
    reader: object
    take: object
    counts: Counter = field(default_factory=Counter)

    def work(self, work):
        """Reads batches, of which only some wait at the workers at a time."""
        from distributed import as_completed

        work = iter(work)
        again = []  # halves of batches that failed
        given = {}
        done = as_completed(raise_errors=False)

        def give():
            while len(given) < AHEAD * max(1, sum(self.client.nthreads().values())):
                batch, failures = again.pop() if again else (next(work, None), 0)
                if batch is None:
                    return
                future = self.client.submit(self.reader, batch, pure=False)
                given[future.key] = (future, batch, failures)
                done.add(future)

        give()
        for future in done:
            _, batch, failures = given.pop(future.key)
            try:
                records = future.result()
            except Misconfigured:
                raise
            except Exception as error:
                if future.cancelled():
                    raise Misconfigured("The scheduler is gone") from None
                again += self._again(batch, failures + 1, error)
            else:
                self._take(records)
            del future
            give()

    def _again(self, batch, failures, error):
        """What is to be read once more of a batch that failed: its halves, until the bad file stands alone."""
        self.counts["batches failed"] += 1
        if len(batch) > 1:
            middle = len(batch) // 2
            return [(batch[:middle], 0), (batch[middle:], 0)]
        if failures < GIVE_UP_AFTER:
            return [(batch, failures)]
        self._take([record_of_lost(batch[0], f"No worker could read the file: {error}")])
        return []

    def _take(self, records):
        self.take(records)
        self.counts["files"] += len(records)


class Writer:
    """The one process that writes the catalogue: the program, which commits whole files in transactions."""

    def __init__(self, program, out):
        command = [program, "catalogue", "--records", "-", "-o", out]
        self._process = subprocess.Popen(command, stdin=subprocess.PIPE)

    def take(self, records):
        try:
            self._process.stdin.write(b"".join(record + b"\n" for record in records))
        except BrokenPipeError:
            raise Misconfigured(f"The catalogue is no longer written, exit code {self._process.wait()}") from None

    def close(self):
        try:
            self._process.stdin.close()
        except BrokenPipeError:
            pass
        return self._process.wait()


def files_to_read(program, arguments):
    """The paths of the files that are new or were changed since the catalogue last saw them."""
    run = subprocess.run([program, "catalogue", "--list", *arguments], stdout=subprocess.PIPE)
    if run.returncode not in (0, 1) and not run.stdout:
        raise Misconfigured("What is to be read cannot be told")
    return run.returncode, run.stdout.split(b"\0")[:-1]


def progress(counts, total, start):
    """A line that tells how far it is, and when it will be done."""
    rate = counts["files"] / max(time.monotonic() - start, 0.001)
    left = (total - counts["files"]) / rate if rate else 0
    return f"{counts['files']} of {total} files, {rate:.0f} a second, {left:.0f} s left"


@contextlib.contextmanager
def connect(arguments):
    """The client of the scheduler that is named, or of workers on this machine."""
    import cloudpickle
    import dask
    from distributed import Client, LocalCluster
    from tornado.ioloop import PeriodicCallback

    # Workers need not have this package.
    cloudpickle.register_pickle_by_value(sys.modules[Reader.__module__])
    with contextlib.ExitStack() as stack:
        scheduler = arguments.scheduler
        if scheduler is None and arguments.scheduler_file is None:
            # Nannies start workers again; where a nanny itself gives up, be it at the start, another one takes its place.
            stack.enter_context(dask.config.set({"distributed.deploy.lost-worker-timeout": "60 s"}))
            cluster = LocalCluster(n_workers=0, threads_per_worker=1, dashboard_address=None)
            scheduler = stack.enter_context(cluster)
            cluster.scale(arguments.workers)
            again = PeriodicCallback(lambda: cluster.scale(arguments.workers), 5000)
            cluster.loop.add_callback(again.start)
            stack.callback(cluster.loop.add_callback, again.stop)
        yield stack.enter_context(Client(scheduler, scheduler_file=arguments.scheduler_file))


def parse(words):
    parser = argparse.ArgumentParser(prog="python3 -m ormo_nitf.archive", description=__doc__.partition("\n")[0])
    parser.add_argument("-r", dest="directories", metavar="DIR", action="append", default=[], help="every file below it")
    parser.add_argument("--files-from", metavar="LIST", help="a path a line")
    parser.add_argument("-0", "--null", action="store_true", help="paths of LIST end with a NUL")
    parser.add_argument("-o", dest="out", metavar="GPKG", required=True, help="the catalogue, which is continued")
    parser.add_argument("--scheduler", metavar="ADDRESS", help="of Dask, such as tcp://head:8786")
    parser.add_argument("--scheduler-file", metavar="FILE", help="that the scheduler of Dask wrote")
    parser.add_argument("--workers", type=int, default=os.cpu_count(), help="on this machine, without a scheduler")
    parser.add_argument("--batch", type=int, default=DEFAULT_BATCH, help="files that a worker reads at once")
    parser.add_argument("--program", default="ormo-nitf", help="path of ormo-nitf, the same on every machine")
    parser.add_argument("--time-limit", type=int, default=60, metavar="S", help="after which a file is given up")
    parser.add_argument("--memory-limit", type=int, default=0, metavar="MB", help="of one process that reads")
    for flag in ("salvage", "previews", "prune", "retry"):
        parser.add_argument(f"--{flag}", action="store_true", help="as of ormo-nitf catalogue")
    return parser.parse_args(words)


def main(words=None):
    arguments = parse(words)
    program = shutil.which(arguments.program) or arguments.program
    listing = [word for directory in arguments.directories for word in ("-r", directory)]
    listing += ["--files-from", arguments.files_from] if arguments.files_from else []
    listing += ["-0"] if arguments.null else []
    listing += [f"--{flag}" for flag in ("prune", "retry") if getattr(arguments, flag)]
    options = [f"--{flag}" for flag in ("salvage", "previews") if getattr(arguments, flag)]
    options += ["--memory-limit", str(arguments.memory_limit)] if arguments.memory_limit else []
    try:
        code, paths = files_to_read(program, [*listing, "-o", arguments.out])
        if not paths:
            print("ormo-nitf: every file is in the catalogue", file=sys.stderr)
            return code
        return max(code, catalogue(arguments, program, Reader(program, tuple(options), arguments.time_limit), paths))
    except (Misconfigured, OSError) as error:
        print(f"ormo-nitf: ERROR: {error}", file=sys.stderr)
        return 2


def catalogue(arguments, program, reader, paths):
    start = time.monotonic()
    shown = sys.stderr.isatty()
    writer = Writer(program, arguments.out)
    try:
        with connect(arguments) as client:

            def take(records):
                writer.take(records)
                if shown:
                    print("\r" + progress(run.counts, len(paths), start), end="\x1b[K", file=sys.stderr, flush=True)

            if client.cluster is None and not client.nthreads():
                print("ormo-nitf: the scheduler has no workers yet", file=sys.stderr)
            run = Run(client, reader, take)
            run.work(batches(paths, arguments.batch))
    finally:
        if shown:
            print("\r\x1b[K", end="", file=sys.stderr)
        code = writer.close()
    seconds = time.monotonic() - start
    failed = f", {run.counts['batches failed']} batches read again" if run.counts["batches failed"] else ""
    print(
        f"ormo-nitf: {run.counts['files']} files in {seconds:.1f} s, {run.counts['files'] / seconds:.0f} a second{failed}",
        file=sys.stderr,
    )
    return code


if __name__ == "__main__":
    sys.exit(main())
