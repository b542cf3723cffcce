#!/usr/bin/env python3
"""What the scheduler and the client of ormo_nitf.archive bear, with workers that only answer.

archive_load.py [FILES [BATCH [BYTES]]]: runs that many files in batches through two workers that answer records of that
many bytes at once, and prints files a second and the memory of this process, in which the scheduler and the client are.
"""

import pathlib
import resource
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "python"))

import cloudpickle
import distributed

from ormo_nitf import archive


class Answer:
    def __init__(self, size):
        self.size = size

    def __call__(self, paths):
        return [b"x" * self.size for _ in paths]


def main():
    files, batch, size = [int(word) for word in sys.argv[1:]] + [1_000_000, archive.DEFAULT_BATCH, 4000][len(sys.argv) - 1 :]
    cloudpickle.register_pickle_by_value(archive)
    with distributed.LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=None) as cluster:
        with distributed.Client(cluster) as client:
            start, processor = time.monotonic(), time.process_time()
            run = archive.Run(client, Answer(size), lambda records: None)
            run.work(archive.batches((b"/archive/of/files/%09d.ntf" % i for i in range(files)), batch))
            seconds = time.monotonic() - start
    print(
        f"{run.counts['files']} files in batches of {batch}, {size} bytes each: {seconds:.1f} s, "
        f"{files / seconds:.0f} files a second; processor {time.process_time() - processor:.1f} s, "
        f"{1e3 * (time.process_time() - processor) / (files / batch):.1f} ms a batch; memory "
        f"{resource.getrusage(resource.RUSAGE_SELF).ru_maxrss / 1024:.0f} MB"
    )


if __name__ == "__main__":
    main()
