import os
from collections.abc import Iterable, Iterator, Mapping, Sequence
from datetime import date, datetime
from typing import Any, Literal, Optional, SupportsIndex, Union, overload

import numpy

__version__: str

Value = Union[None, int, float, str, bytes, date, datetime]
Path = Union[str, bytes, os.PathLike[str], os.PathLike[bytes]]

class NitfError(Exception):
    findings: list[Finding]
    def __init__(self, reason: str, findings: Iterable[Finding] = ...) -> None: ...

class Finding:
    level: Literal["warning", "error", "fatal"]
    rule: str
    sentence: str
    owner: str
    field: str
    detail: str
    value: str
    allowed: str
    clause: str
    segment: str
    index: Optional[int]
    tre: str
    offset: Optional[int]

class Info:
    name: str
    width: int
    long_name: str
    unit: str
    values: str
    description: str

class Field(str):
    name: str
    raw: bytes
    value: Value
    @property
    def info(self) -> Info: ...
    @property
    def meaning(self) -> str: ...

class Tre(Mapping[str, Field]):
    tag: str
    long_name: str
    is_decoded: bool
    area: str
    offset: int
    data: bytes
    def __getitem__(self, name: str) -> Field: ...
    def __iter__(self) -> Iterator[str]: ...
    def __len__(self) -> int: ...

class TreList(list[Tre]):
    @overload
    def __getitem__(self, key: str) -> Tre: ...
    @overload
    def __getitem__(self, key: SupportsIndex) -> Tre: ...
    @overload
    def __getitem__(self, key: slice) -> list[Tre]: ...
    def get(self, tag: str, default: Any = ...) -> Any: ...
    def all(self, tag: str) -> list[Tre]: ...

class Segment(Mapping[str, Field]):
    kind: str
    index: int
    name: str
    is_readable: bool
    header_offset: int
    header_size: int
    data_offset: int
    data_size: int
    tres: TreList
    def data(self) -> Optional[bytes]: ...
    def __getitem__(self, name: str) -> Field: ...
    def __iter__(self) -> Iterator[str]: ...
    def __len__(self) -> int: ...

class Footprint:
    corners: list[tuple[float, float]]
    source: str
    crosses_180: bool
    bounds: tuple[float, float, float, float]
    @property
    def __geo_interface__(self) -> Optional[dict[str, Any]]: ...

class Rpc:
    tag: str
    line_numerator: list[float]
    line_denominator: list[float]
    sample_numerator: list[float]
    sample_denominator: list[float]
    offsets: dict[str, float]
    scales: dict[str, float]
    bias: float
    random: float

class Image(Segment):
    rows: int
    columns: int
    bands: int
    footprint: Optional[Footprint]
    rpc: Optional[Rpc]
    dtype: numpy.dtype[Any]
    @property
    def __geo_interface__(self) -> dict[str, Any]: ...
    def property(self, key: str) -> Optional[str]: ...
    def pixels(
        self, band: Optional[int] = ..., *, window: Optional[Sequence[int]] = ..., step: int = ...
    ) -> numpy.ndarray[Any, Any]: ...

class File:
    path: str
    version: str
    size: int
    header: Segment
    segments: list[Segment]
    images: list[Image]
    findings: list[Finding]
    @property
    def __geo_interface__(self) -> dict[str, Any]: ...
    def __init__(self, path: bytes, salvage: bool = ..., images_only: bool = ...) -> None: ...
    def get(self, name: str) -> Value: ...
    def validate(self) -> list[Finding]: ...
    def xml(self) -> str: ...
    def close(self) -> None: ...
    def __enter__(self) -> File: ...
    def __exit__(self, *reason: object) -> None: ...

def open(path: Path, *, salvage: bool = ..., images_only: bool = ...) -> File: ...
def from_bytes(data: bytes, name: str = ...) -> File: ...
def scan(
    paths: Iterable[Union[str, os.PathLike[str]]], fields: Iterable[str], jobs: int = ...
) -> Iterator[dict[str, Value]]: ...
