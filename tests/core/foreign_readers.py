"""Other programs open our property lists, and we open theirs, with every value of the same kind and bits.

The others are Python's plistlib and Debian's plistutil. Run as: foreign_readers.py PROPERTY_LIST_TOOL
"""

import datetime
import pathlib
import plistlib
import struct
import subprocess
import sys
import tempfile
import unittest

TOOL = sys.argv.pop(1)
SAVES = pathlib.Path(__file__).parent.parent / "saves"
EPOCH = datetime.datetime(2001, 1, 1)

EVERYTHING = {
    "booleans": [True, False],
    "integers": [0, 1, 255, 256, 65535, 65536, 2**32 - 1, 2**32, 2**63 - 1, -1, -256, -(2**63)],
    # Not -0.0: plistutil loses the sign in its text format.
    "reals": [0.0, 1.0, 0.1, -2.5, 1e300, 1 / 3, 123456789.125],
    "dates": [EPOCH, datetime.datetime(1999, 12, 31, 23, 59, 59), datetime.datetime(2024, 2, 29, 12, 0, 0)],
    "data": [b"", b"\x00\xff", bytes(range(256)) * 2],
    "texts": ["", "plain", "x" * 14, "x" * 15, "x" * 300, "<&>", "é", "naïve 東京 🎬", "🎬" * 200],
    "containers": [[], {}, [[[]]], {"a": {"b": {}}}],
    "a é 🎬 key": "value",
    "repeated": ["the same"] * 300,
    "many": {f"key {index}": index for index in range(300)},
}

def listing(value, path=""):
    """The lines of `property_list_tool show`, from a value of plistlib."""
    if isinstance(value, bool):
        yield f"{path} bool {value:d}"
    elif isinstance(value, int):
        yield f"{path} int {value}"
    elif isinstance(value, float):
        yield f"{path} float {struct.pack('>d', value).hex()}"
    elif isinstance(value, str):
        yield f"{path} str {value.encode().hex()}"
    elif isinstance(value, bytes):
        yield f"{path} data {value.hex()}"
    elif isinstance(value, datetime.datetime):
        yield f"{path} date {struct.pack('>d', (value - EPOCH).total_seconds()).hex()}"
    elif isinstance(value, list):
        yield f"{path} list {len(value)}"
        for index, element in enumerate(value):
            yield from listing(element, f"{path}/{index}")
    elif isinstance(value, dict):
        yield f"{path} dict {len(value)}"
        for key, element in value.items():
            yield from listing(element, f"{path}/{key.encode().hex()}")
    else:
        raise TypeError(type(value))


class ForeignReaders(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def run_program(self, *arguments):
        done = subprocess.run([str(argument) for argument in arguments], capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stderr)
        return done.stdout.splitlines()

    def file(self, name, content=None):
        path = self.folder / name
        if content is not None:
            path.write_bytes(content)
        return path

    def through_plistutil(self, source, form):
        target = self.file(f"plistutil.{form}")
        self.run_program("plistutil", "-i", source, "-f", form, "-o", target)
        return target

    def theirs(self, value):
        """The value as a binary file of each of the other programs."""
        by_plistlib = self.file("plistlib.plist", plistlib.dumps(value, fmt=plistlib.FMT_BINARY, sort_keys=False))
        as_xml = self.file("plistlib.xml", plistlib.dumps(value, fmt=plistlib.FMT_XML, sort_keys=False))
        return {"plistlib": by_plistlib, "plistutil": self.through_plistutil(as_xml, "bin")}

    def assert_opens_everywhere(self, ours, value):
        """Ours, read by each of the other programs, holds the value: kinds, bits and the order of keys."""
        expected = list(listing(value))
        self.assertEqual(list(listing(plistlib.loads(ours.read_bytes()))), expected)
        as_xml = self.through_plistutil(ours, "xml")
        self.assertEqual(list(listing(plistlib.loads(as_xml.read_bytes()))), expected)

    def test_we_read_what_others_write(self):
        for writer, path in self.theirs(EVERYTHING).items():
            with self.subTest(writer):
                self.assertEqual(self.run_program(TOOL, "show", path), list(listing(EVERYTHING)))

    def test_others_read_what_we_write(self):
        for writer, path in self.theirs(EVERYTHING).items():
            with self.subTest(writer):
                ours = self.file("ours.plist")
                self.run_program(TOOL, "copy", path, ours)
                self.assert_opens_everywhere(ours, EVERYTHING)

    def test_careers_go_both_ways(self):
        for saved in sorted(SAVES.glob("*/*/career.plist")):
            with self.subTest(saved.parent.name):
                store = plistlib.loads(saved.read_bytes())
                kinds = {"weekNumber": int, "totalCashAvailable": float, "isMale": bool, "myName": str,
                         "saveWeeklyEarnings": list, "activityTracker": list, "saveAllWeeklyLineItems": bytes}
                self.assertEqual({key: type(store[key]) for key in kinds}, kinds)
                self.assertEqual({type(net) for net in store["saveWeeklyEarnings"]}, {float})
                self.assertEqual(plistlib.loads(store["saveAllWeeklyLineItems"])[0]["title"], "Basic Needs")
                self.assert_opens_everywhere(saved, store)
                for writer, path in self.theirs(store).items():
                    self.assertEqual(self.run_program(TOOL, "show", path), list(listing(store)), writer)


unittest.main()
