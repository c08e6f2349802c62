"""A measured figure beside what it may be, and the table that they make."""

import dataclasses

HEAD = "| what | measured | beside it | to it | budget | to the budget | |\n|---|---|---|---|---|---|---|"


@dataclasses.dataclass
class Figure:
    """What was measured, in words. `to_other` is the ratio to what stands beside it, `to_budget` the ratio to what it
    may be at most; None where there is nothing to compare with."""

    what: str
    measured: str
    beside: str = ""
    to_other: float | None = None
    budget: str = ""
    to_budget: float | None = None

    @property
    def missed(self):
        return self.to_budget is not None and self.to_budget > 1

    def row(self):
        verdict = "" if self.to_budget is None else "missed" if self.missed else "held"
        return (f"| {self.what} | {self.measured} | {self.beside} | {_text(self.to_other)} | {self.budget}"
                f" | {_text(self.to_budget)} | {verdict} |")


def _text(ratio):
    return "" if ratio is None else f"{ratio:.2f}"
