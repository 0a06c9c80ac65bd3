"""Runs the command `python3 -m kelifc.batch`."""

import sys

from kelifc.batch.command_line import main

if __name__ == "__main__":
    sys.exit(main())
