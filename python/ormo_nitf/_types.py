"""What the compiled module hands out and takes: texts with a value, lists of TREs, the exception."""

from collections.abc import Mapping


class NitfError(Exception):
    """A file that is no NITF file or is damaged, or pixels that cannot be read; `findings` says what was found."""

    def __init__(self, reason, findings=()):
        super().__init__(reason)
        self.findings = list(findings)


class Field(str):
    """The text of a field, without the blanks around it; binary fields as Latin-1.

    `value` is a number, a `datetime` (UTC), a `date`, text, bytes or, for blanks, None, by the table that the header or
    TRE is read by. Dates of which more is unknown than the time of day are text: "2000-06".
    """

    __slots__ = ("name", "raw", "value", "_owner")

    def __new__(cls, text, name, raw, value, owner):
        field = super().__new__(cls, text)
        field.name = name
        field.raw = raw
        field.value = value
        field._owner = owner
        return field

    @property
    def info(self):
        """What the table says of the field: long name, unit, allowed values, description."""
        return self._owner._info(self.name)

    @property
    def meaning(self):
        """The text with what it means, such as "JPEG 2000 (C8)"; the text alone when the table says nothing."""
        return self._owner._meaning(self.name)

    def __reduce__(self):
        return str, (str(self),)


class TreList(list):
    """The TREs of a segment in order of appearance; a tag in brackets is the first one of that tag."""

    def __getitem__(self, key):
        if not isinstance(key, str):
            return super().__getitem__(key)
        for tre in self:
            if tre.tag == key:
                return tre
        raise KeyError(key)

    def __contains__(self, key):
        return any(tre.tag == key for tre in self) if isinstance(key, str) else super().__contains__(key)

    def get(self, tag, default=None):
        """The first TRE of a tag."""
        return self[tag] if tag in self else default

    def all(self, tag):
        """Every TRE of a tag."""
        return [tre for tre in self if tre.tag == tag]


def as_mappings(*classes):
    for cls in classes:
        Mapping.register(cls)
