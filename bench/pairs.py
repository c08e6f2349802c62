"""Two builds of the program, measured in pairs one right after the other: is there a difference, and how large?"""

import dataclasses
import math
import statistics

HEAD = "| what | this build | the other | to the other | surely between | |\n|---|---|---|---|---|---|"
SURE = 0.99  # how likely the true ratio lies within the bounds: of a dozen lines, hardly ever one that does not
SHOWS = 0.05  # the smallest change that is looked for


@dataclasses.dataclass
class Pairs:
    """The figures of this build and of the other, pair by pair; less is better."""

    what: str
    unit: str
    ours: list
    others: list
    missed = False  # There is no budget.

    @property
    def ratios(self):
        return sorted(one / other for one, other in zip(self.ours, self.others))

    @property
    def ratio(self):
        return statistics.median(self.ratios)

    @property
    def bounds(self):
        """The true median of the ratios lies between these, whatever the figures are spread like: each of n pairs is
        above or below it as a coin falls."""
        ratios, rank = self.ratios, _rank(len(self.ours))
        return ratios[rank - 1], ratios[-rank]

    @property
    def verdict(self):
        low, high = self.bounds
        if low <= 1 <= high:
            noise = max(high - 1, 1 - low)
            hidden = "" if noise < SHOWS else f", which would hide {SHOWS:.0%}: needs a quieter machine"
            return f"no difference beyond the noise of {noise:.1%}{hidden}"
        return f"**{abs(self.ratio - 1):.1%} {'better' if self.ratio < 1 else 'worse'}**"

    def row(self):
        ours, others = statistics.median(self.ours), statistics.median(self.others)
        low, high = self.bounds
        return (f"| {self.what} | {ours:,.1f} {self.unit} | {others:,.1f} {self.unit} | {self.ratio:.3f}"
                f" | {low:.3f} and {high:.3f} | {self.verdict} |")


def _rank(count):
    """The largest rank from the ends of so many sorted ratios between which the median surely lies."""
    rank = 0
    while 2 * sum(math.comb(count, below) for below in range(rank + 1)) / 2**count <= 1 - SURE:
        rank += 1
    if rank == 0:
        raise ValueError(f"{count} pairs are too few to be sure of anything")
    return rank
