"""Plots as SVG, readable without colour: a panel with axes, lines that differ by their dashes and
carry their names at the end."""

STYLE = """text { font-family: "DejaVu Sans", Arial, sans-serif; fill: #111; font-size: 12px }
.title { font-weight: bold; font-size: 13px }
.head { font-weight: bold; font-size: 16px }
.name { font-size: 11px }
.grid { stroke: #ddd; stroke-width: 1 }
.zero { stroke: #666; stroke-width: 1 }
.frame { fill: none; stroke: #444 }
.line { fill: none; stroke: #111; stroke-linejoin: round }
.beyond { fill: none; stroke: #999; stroke-width: 0.9 }"""

# From the first line to the last: width and dashes.
STYLES = [(2.4, ""), (1.6, ""), (1.6, "9 4"), (1.6, "9 3 2 3"), (1.6, "4 3"), (1.8, "1.5 3")]


def document(width, height, title, description, parts):
    return "\n".join([
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
        f'viewBox="0 0 {width} {height}" role="img" aria-labelledby="title desc">',
        f'<title id="title">{title}</title>', f'<desc id="desc">{description}</desc>',
        f'<style>\n{STYLE}\n</style>', f'<rect width="{width}" height="{height}" fill="#fff"/>',
        *parts, '</svg>']) + "\n"


def label(x, y, content, css="", anchor="start", extra=""):
    kind = f' class="{css}"' if css else ""
    return f'<text{kind} x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}"{extra}>{content}</text>'


def spread(places, step, low, high):
    """The places moved apart, in order, so that neighbours are `step` apart within the range."""
    order = sorted(range(len(places)), key=lambda i: places[i])
    moved = dict(zip(order, sorted(places)))
    for _ in range(200):
        for a, b in zip(order, order[1:]):
            lack = step - (moved[b] - moved[a])
            if lack > 0:
                moved[a] -= lack / 2
                moved[b] += lack / 2
        for i, here in enumerate(order):
            moved[here] = min(max(moved[here], low + i * step), high - (len(order) - 1 - i) * step)
    return [moved[i] for i in range(len(places))]


class Panel:
    """A frame of the plot. `x_range` and `y_range` are values, the rest pixels."""

    def __init__(self, place, size, x_range, y_range):
        self.x0, self.y0 = place
        self.width, self.height = size
        self.x_range, self.y_range = x_range, y_range
        self.clip = f"panel{self.x0}-{self.y0}"
        self.parts = [f'<clipPath id="{self.clip}"><rect x="{self.x0}" y="{self.y0}" '
                      f'width="{self.width}" height="{self.height}"/></clipPath>']

    def x(self, value):
        low, high = self.x_range
        return self.x0 + (value - low) / (high - low) * self.width

    def y(self, value):
        low, high = self.y_range
        return self.y0 + (high - value) / (high - low) * self.height

    def axes(self, title, x_ticks, y_ticks, x_title, y_title, suffix=""):
        x1, y1 = self.x0 + self.width, self.y0 + self.height
        add = self.parts.append
        add(label(self.x0, self.y0 - 8, title, "title"))
        for value in y_ticks:
            y = self.y(value)
            css = "zero" if value == 0 else "grid"
            add(f'<line class="{css}" x1="{self.x0}" y1="{y:.1f}" x2="{x1}" y2="{y:.1f}"/>')
            add(label(self.x0 - 6, y + 4, f"{value:g}{suffix}", anchor="end"))
        for value in x_ticks:
            x = self.x(value)
            add(f'<line class="grid" x1="{x:.1f}" y1="{self.y0}" x2="{x:.1f}" y2="{y1}"/>')
            add(label(x, y1 + 15, f"{value:g}", anchor="middle"))
        add(f'<rect class="frame" x="{self.x0}" y="{self.y0}" width="{self.width}" '
            f'height="{self.height}"/>')
        add(label(self.x0 + self.width / 2, y1 + 31, x_title, anchor="middle"))
        x, y = self.x0 - 46, self.y0 + self.height / 2
        add(label(x, y, y_title, anchor="middle", extra=f' transform="rotate(-90 {x:.1f} {y:.1f})"'))

    def line(self, pairs, style=1, css="line"):
        places = " ".join(f"{self.x(x):.1f},{self.y(y):.1f}" for x, y in pairs)
        width, dashes = STYLES[style]
        dash = f' stroke-dasharray="{dashes}"' if dashes else ""
        look = "" if css == "beyond" else f' stroke-width="{width}"'
        self.parts.append(f'<polyline class="{css}"{look}{dash} clip-path="url(#{self.clip})" '
                          f'points="{places}"/>')

    def names(self, ends):
        """`ends`: a name and the value of its line at the right edge."""
        low, high = self.y_range
        wanted = [self.y(min(max(value, low), high)) for _, value in ends]
        x = self.x0 + self.width
        for (name, _), before, after in zip(ends, wanted,
                                            spread(wanted, 13, self.y0 + 2, self.y0 + self.height)):
            self.parts.append(f'<line class="zero" x1="{x}" y1="{before:.1f}" x2="{x + 7}" '
                              f'y2="{after:.1f}"/>')
            self.parts.append(label(x + 9, after + 4, name, "name"))
