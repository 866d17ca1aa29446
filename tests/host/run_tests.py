#!/usr/bin/env python3
"""Runs the tests of the command: run_tests.py KYR SAMPLES [TEST...]

KYR is the program, SAMPLES the folder of sample models. Tests are names such as
test_import.Saving; without any, all run.
"""

import os
import sys
import unittest


def main(arguments):
    os.environ["KYR"] = os.path.abspath(arguments[1])
    os.environ["KYR_SAMPLES"] = os.path.abspath(arguments[2])
    here = os.path.dirname(os.path.abspath(__file__))
    sys.path.insert(0, here)
    loader = unittest.TestLoader()
    tests = loader.loadTestsFromNames(arguments[3:]) if arguments[3:] else loader.discover(here)
    result = unittest.TextTestRunner(verbosity=1).run(tests)
    # A folder without tests is a mistake, not a success.
    return 0 if result.wasSuccessful() and result.testsRun else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv))
