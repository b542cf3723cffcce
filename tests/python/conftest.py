"""Files that the tests work on: the sample that the project makes, and real ones."""

import os
import pathlib
import subprocess

import pytest


@pytest.fixture(scope="session")
def sample(tmp_path_factory):
    """The path of the sample: an image chip with its support data, a graphic, a text and an overflow DES."""
    path = tmp_path_factory.mktemp("sample") / "sample.ntf"
    subprocess.run([os.environ["ORMO_MAKE_SAMPLE"], path], check=True, stdout=subprocess.DEVNULL)
    return path


@pytest.fixture(scope="session")
def corpus():
    folder = pathlib.Path(os.environ.get("ORMO_CORPUS", "nowhere"))
    if not folder.is_dir():
        pytest.skip("no corpus")
    return folder


@pytest.fixture(scope="session")
def program():
    return os.environ["ORMO_NITF"]
