#!/usr/bin/env python3
"""Runs the tests of the real program.

Usage: run_e2e.py --program QUILLON_ED --source SOURCE_DIRECTORY [--report FILE.xml] [-k PATTERN]
"""
import argparse
import os
import sys
import time
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

HERE = Path(__file__).resolve().parent


class Report(unittest.TextTestResult):
    """Notes every case with its time, for the report file."""

    def __init__(self, *arguments):
        super().__init__(*arguments)
        self.cases = []

    def startTest(self, test):
        super().startTest(test)
        self.started = time.monotonic()

    def addFailure(self, test, err):
        super().addFailure(test, err)
        if hasattr(test, "situation"):
            name, text = self.failures[-1]
            self.failures[-1] = (name, f"{text}\n{test.situation()}")

    def stopTest(self, test):
        self.cases.append((test.id(), time.monotonic() - self.started))
        super().stopTest(test)

    def write(self, path):
        failed = {test.id().split(" ")[0]: text for test, text in self.failures + self.errors}
        skipped = {test.id(): reason for test, reason in self.skipped}
        root = xml.Element("testsuites", name="e2e_tests", tests=str(len(self.cases)), failures=str(len(failed)),
                           errors="0", disabled="0")
        suite = xml.SubElement(root, "testsuite", root.attrib)
        for name, seconds in self.cases:
            case = xml.SubElement(suite, "testcase", name=name, time=f"{seconds:.2f}")
            if name in failed:
                xml.SubElement(case, "failure").text = failed[name]
            if name in skipped:
                xml.SubElement(case, "skipped").text = skipped[name]
        Path(path).parent.mkdir(parents=True, exist_ok=True)
        xml.ElementTree(root).write(path, encoding="utf-8", xml_declaration=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--program", required=True)
    parser.add_argument("--source", required=True)
    parser.add_argument("--report")
    parser.add_argument("-k", dest="patterns", action="append")
    arguments = parser.parse_args()
    os.environ["QUILLON_PROGRAM"] = str(Path(arguments.program).resolve())
    os.environ["QUILLON_SOURCE"] = str(Path(arguments.source).resolve())

    loader = unittest.TestLoader()
    if arguments.patterns:
        loader.testNamePatterns = [pattern if "*" in pattern else f"*{pattern}*" for pattern in arguments.patterns]
    suite = loader.discover(str(HERE), pattern="test_*.py", top_level_dir=str(HERE))
    runner = unittest.TextTestRunner(verbosity=2, resultclass=Report, failfast=False)
    result = runner.run(suite)
    if arguments.report:
        result.write(arguments.report)
    sys.exit(0 if result.wasSuccessful() and result.testsRun else 1)


if __name__ == "__main__":
    main()
