"""Where the build under test is."""

import os
import pathlib

BUILD = pathlib.Path(os.environ.get("TALLYHOOP_BUILD", pathlib.Path(__file__).parents[2] / "build"))
