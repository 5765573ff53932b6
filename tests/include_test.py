#!/usr/bin/env python3
"""Reads the includes of the sources and says where one runs upward, or in a circle."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ROOMS = ["platform", "swf", "vector", "media", "document", "script", "effects", "canvas", "output", "app", "ui"]

# Floors from the ground up. A file stands on that of its own folder.
FLOORS = [
    "platform",
    "swf",
    "document/cells",
    "script/compiler",
    "effects/filters",
    "swf/tags",
    "vector",
    "media",
    "script",
    "script/editor",
    "effects",
    "document/elements",
    "document/symbols",
    "document/records",
    "document",
    "document/edit",
    "swf/authoring",
    "effects/templates",
    "canvas/timeline",
    "canvas",
    "canvas/handles",
    "canvas/picture",
    "output",
    "app/settings",
    "app/editors",
    "app/shortcuts",
    "app/tasks",
    "app/session",
    "app/operations",
    "app/controller",
    "app/fields",
    "app/commands",
    "app",
    "ui",
]


def floor(name):
    return FLOORS.index(name.rpartition("/")[0])


def includes_of(path):
    return re.findall(r'^#include "([^"]+)"', path.read_text(encoding="utf-8"), re.MULTILINE)


def find_circle(graph):
    """A list of headers that include each other in a circle, or nothing."""
    state = {}

    def visit(name, way):
        state[name] = "open"
        for other in graph.get(name, []):
            if state.get(other) == "open":
                return way[way.index(other):] + [other]
            if other not in state:
                circle = visit(other, way + [other])
                if circle:
                    return circle
        state[name] = "done"
        return None

    for name in graph:
        if name not in state:
            circle = visit(name, [name])
            if circle:
                return circle
    return None


def main():
    faults = []
    graph = {}
    for room in ROOMS:
        for path in sorted((ROOT / room).rglob("*.[hc]*")):
            name = path.relative_to(ROOT).as_posix()
            graph[name] = includes_of(path)
            for other in graph[name]:
                if not (ROOT / other).is_file():
                    faults.append(f"{name} includes {other}, which is not there")
                elif floor(other) > floor(name):
                    faults.append(f"{name} includes {other}, which stands above it")
    circle = find_circle(graph)
    if circle:
        faults.append("in a circle: " + " -> ".join(circle))
    if len(graph) < 50:
        faults.append(f"only {len(graph)} sources found below {ROOT}")
    print("\n".join(faults) if faults else f"{len(graph)} sources, every include runs downward")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
