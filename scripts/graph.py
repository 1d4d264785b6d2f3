"""Cycles of a graph, told as a dictionary: node -> nodes that it needs."""

from collections import deque


def cycles(graph):
    """One shortest cycle of each group of nodes that need each other, and the whole group."""
    reached = {node: set(_way(graph, node)) for node in graph}
    grouped = set()
    for node in sorted(graph):
        if node in reached[node] and node not in grouped:
            group = {other for other in reached[node] if node in reached.get(other, ())}
            grouped |= group
            yield min((_cycle(graph, start) for start in sorted(group)), key=len), group


def _cycle(graph, start):
    """A shortest way from a node back to itself."""
    before = _way(graph, start)
    cycle = [start]
    while len(cycle) == 1 or cycle[0] != start:
        cycle.insert(0, before[cycle[0]])
    return cycle


def _way(graph, start):
    """Each node that is reached from the start by at least one step, with the one before it."""
    before = {}
    waiting = deque([start])
    while waiting:
        node = waiting.popleft()
        for following in sorted(graph.get(node, ())):
            if following not in before:
                before[following] = node
                waiting.append(following)
    return before
