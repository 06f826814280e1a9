"""Fixtures of the numbering module's tests: configuration files written into a fresh directory per test."""

import pathlib

import pytest

import numbering

SOURCE_DIR = pathlib.Path(__file__).resolve().parents[2]


@pytest.fixture
def configure(tmp_path):
    """configure({name: text}) writes the files into a fresh directory and points the library at it; the
    directory the library had is restored afterwards."""
    previous = numbering.config_directory()

    def write(files):
        for name, text in files.items():
            (tmp_path / name).write_text(text)
        numbering.set_config_directory(str(tmp_path))

    yield write
    numbering.set_config_directory(previous)
