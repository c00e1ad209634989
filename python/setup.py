"""The version stands in one place, which is not here."""
import pathlib
import re

import setuptools

build = pathlib.Path(__file__).resolve().parent.parent / "CMakeLists.txt"
setuptools.setup(version=re.search(r"project\(nerlo VERSION ([0-9.]+)", build.read_text())[1])
