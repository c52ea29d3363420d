"""The rooms of the program, as the build knows them."""

import re

import campaign


def without_qt():
    """The rooms that src/CMakeLists.txt declares before it looks for Qt, the outer ones only."""
    text = (campaign.ROOT / "src/CMakeLists.txt").read_text(encoding="utf-8").split("find_package(Qt6")[0]
    found = re.findall(r"^korven_room\((\w+)", text, re.M)
    return [room for room in dict.fromkeys(found) if room != "python"]  # built by a preset of its own


def with_tests(rooms):
    """Those of them that have a test program, <room>_test."""
    return [room for room in rooms if (campaign.ROOT / "tests" / room).is_dir()]
