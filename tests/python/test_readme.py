"""The README's Python example prints what the README says it prints."""

import os
import re
import subprocess
import sys

from conftest import SOURCE_DIR


def test_readme_example_prints_the_readme_output():
    readme = (SOURCE_DIR / "README.md").read_text()
    section = readme.split("\n## A Python module\n", 1)[1].split("\n## ", 1)[0]
    example, output = re.search(r"```python\n(.*?)```.*?prints:\n\n```\n(.*?)```", section, re.DOTALL).groups()
    run = subprocess.run([sys.executable, "-c", example], cwd=SOURCE_DIR, env=os.environ, capture_output=True,
                         text=True, check=True)
    assert output == run.stdout
