"""NITF 2.0, NITF 2.1 and NSIF 1.0 files: headers, segments, TREs, footprints, pixels, documents.

    import ormo_nitf

    with ormo_nitf.open("image.ntf") as file:
        image = file.images[0]
        print(image["IREP"], image["NROWS"].value, image.tres["USE00A"]["SUN_EL"].value)
"""

import os
from collections import deque
from concurrent.futures import ThreadPoolExecutor

from ._types import Field, NitfError, TreList, as_mappings

try:
    from ._core import File, Finding, Footprint, Image, Info, Rpc, Segment, Tre, __version__, _row
except ModuleNotFoundError as missing:
    if missing.name != f"{__name__}._core":
        raise
    # The archive work needs no more than the program.
else:
    as_mappings(Segment, Tre)

__all__ = [
    "Field",
    "File",
    "Finding",
    "Footprint",
    "Image",
    "Info",
    "NitfError",
    "Rpc",
    "Segment",
    "Tre",
    "TreList",
    "from_bytes",
    "open",
    "scan",
]

_open = open


def open(path, *, salvage=False, images_only=False):
    """Opens a file.

    With `salvage` what can be read of a damaged one, with `images_only` without the segments behind the images. Raises
    OSError for a path that cannot be opened, and NitfError for a file that is none of NITF or NSIF, or damaged.
    """
    try:
        return File(os.fsencode(path), salvage, images_only)
    except NitfError:
        # What the system says of the path comes first.
        with _open(path, "rb"):
            raise


def from_bytes(data, name="memory"):
    """The same for a file, or its first part, that stands in memory; the bytes are copied."""
    return File._from_bytes(data, name)


def scan(paths, fields, jobs=1):
    """Yields a flat dict for each path, in their order: `path`, `error` and the value of each field.

    Fields are named "image.IDATIM" (of the first image), "image:1.IDATIM" or "USE00A.SUN_EL" (of the first such TRE); one
    that a file has not is None. A file that cannot be read has a text in `error`. Reads `jobs` files at once.

        pandas.DataFrame(ormo_nitf.scan(paths, ["image.IDATIM", "USE00A.SUN_EL"], jobs=4))
    """
    fields = list(fields)

    def row(path):
        return {"path": os.fspath(path), **_row(os.fsencode(path), fields)}

    if jobs <= 1:
        yield from map(row, paths)
        return
    with ThreadPoolExecutor(jobs) as pool:
        ahead = deque()
        for path in paths:
            ahead.append(pool.submit(row, path))
            if len(ahead) > 8 * jobs:
                yield ahead.popleft().result()
        while ahead:
            yield ahead.popleft().result()
