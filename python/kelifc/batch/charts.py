"""Plots as SVG text. Texts of models are escaped; colours come from the style of the page."""

from __future__ import annotations

import math
from collections.abc import Sequence
from html import escape

from kelifc.batch.text import printable

_WIDTH = 720
_LABEL = 230
_ROW = 22
_PLOT_HEIGHT = 260
_LEFT, _RIGHT, _TOP, _BOTTOM = 60, 15, 12, 40


def shown(text: str) -> str:
    """Returns text as markup that shows it."""
    return escape(printable(text))


def quantity(value: float) -> str:
    """Returns a number in few characters, such as 1.5 k."""
    for factor, mark in ((1e9, " G"), (1e6, " M"), (1e3, " k")):
        if abs(value) >= factor:
            return f"{value / factor:.3g}{mark}"
    return f"{value:.3g}"


def bars(title: str, rows: Sequence[tuple[str, Sequence[float]]]) -> str:
    """Returns horizontal bars. Each row has a label and one or more values, which are stacked."""
    longest = max((sum(values) for _, values in rows), default=0) or 1
    scale = (_WIDTH - _LABEL - 70) / longest
    parts = []
    for number, (label, values) in enumerate(rows):
        y = number * _ROW
        parts.append(f'<text x="{_LABEL - 8}" y="{y + 15}" class="end">{_short(label)}</text>')
        x = float(_LABEL)
        for series, value in enumerate(values):
            parts.append(
                f'<rect x="{x:.1f}" y="{y + 3}" width="{value * scale:.1f}" height="{_ROW - 6}"'
                f' class="s{series}"/>'
            )
            x += value * scale
        parts.append(f'<text x="{x + 6:.1f}" y="{y + 15}">{quantity(sum(values))}</text>')
    return _svg(title, _ROW * len(rows) + 4, parts)


def histogram(title: str, unit: str, values: Sequence[float]) -> str:
    """Returns a histogram over powers of ten, with three bars for each. Values are positive."""
    counts: dict[int, int] = {}
    for value in values:
        step = math.floor(math.log10(value) * 3 + 1e-9)
        counts[step] = counts.get(step, 0) + 1
    if not counts:
        return ""
    first, last = min(counts), max(counts)
    width = (_WIDTH - _LEFT - _RIGHT) / (last - first + 1)
    most = max(counts.values())
    parts = [_axis_title(unit)]
    for step in range(first, last + 1):
        x = _LEFT + (step - first) * width
        count = counts.get(step, 0)
        height = _PLOT_HEIGHT * count / most
        y = _TOP + _PLOT_HEIGHT - height
        parts.append(
            f'<rect x="{x + 1:.1f}" y="{y:.1f}" width="{max(1.0, width - 2):.1f}"'
            f' height="{height:.1f}" class="s0"/>'
        )
        if count:
            middle = x + width / 2
            parts.append(f'<text x="{middle:.1f}" y="{y - 3:.1f}" class="mid">{count}</text>')
        if step % 3 == 0 or last - first < 6:
            parts.append(_tick(x, quantity(10 ** (step / 3))))
    return _svg(title, _TOP + _PLOT_HEIGHT + _BOTTOM, parts)


def scatter(
    title: str, units: tuple[str, str], points: Sequence[tuple[float, float]]
) -> str:
    """Returns points on two logarithmic axes. Their coordinates are positive."""
    if not points:
        return ""
    x_range = _decades([x for x, _ in points])
    y_range = _decades([y for _, y in points])
    across, up = _WIDTH - _LEFT - _RIGHT, _PLOT_HEIGHT
    parts = [_axis_title(units[0]), f'<text x="4" y="{_TOP + 10}">{escape(units[1])}</text>']
    for power in range(x_range[0], x_range[1] + 1):
        x = _LEFT + across * _share(10.0**power, x_range)
        parts.append(f'<path d="M{x:.1f} {_TOP}V{_TOP + up}" class="grid"/>')
        parts.append(_tick(x, quantity(10.0**power)))
    for power in range(y_range[0], y_range[1] + 1):
        y = _TOP + up * (1 - _share(10.0**power, y_range))
        parts.append(f'<path d="M{_LEFT} {y:.1f}H{_LEFT + across}" class="grid"/>')
        parts.append(
            f'<text x="{_LEFT - 5}" y="{y + 4:.1f}" class="end">{quantity(10.0**power)}</text>'
        )
    for x, y in points:
        px = _LEFT + across * _share(x, x_range)
        py = _TOP + up * (1 - _share(y, y_range))
        parts.append(f'<circle cx="{px:.1f}" cy="{py:.1f}" r="2.5" class="s0"/>')
    return _svg(title, _TOP + _PLOT_HEIGHT + _BOTTOM, parts)


def _short(label: str) -> str:
    return escape(printable(label, 34))


def _decades(values: Sequence[float]) -> tuple[int, int]:
    low = math.floor(math.log10(min(values)))
    return low, max(low + 1, math.ceil(math.log10(max(values))))


def _share(value: float, decades: tuple[int, int]) -> float:
    return (math.log10(value) - decades[0]) / (decades[1] - decades[0])


def _axis_title(unit: str) -> str:
    y = _TOP + _PLOT_HEIGHT + 34
    return f'<text x="{_WIDTH - _RIGHT}" y="{y}" class="end">{escape(unit)}</text>'


def _tick(x: float, text: str) -> str:
    return f'<text x="{x:.1f}" y="{_TOP + _PLOT_HEIGHT + 16}" class="mid">{text}</text>'


def _svg(title: str, height: float, parts: Sequence[str]) -> str:
    head = f'<svg viewBox="0 0 {_WIDTH} {height:.0f}" width="{_WIDTH}" role="img"'
    return f'{head} aria-label="{escape(title)}">{"".join(parts)}</svg>'
