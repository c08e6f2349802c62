"""A measured figure beside what it may be, and the table that they make."""

import dataclasses

HEAD = "| what | measured | beside it | ratio | budget | |\n|---|---|---|---|---|---|"


@dataclasses.dataclass
class Figure:
    """What was measured, in words; `held` is None where there is no budget, only a figure to compare with."""

    what: str
    measured: str
    beside: str = ""
    ratio: float | None = None
    budget: str = ""
    held: bool | None = None

    def row(self):
        ratio = "" if self.ratio is None else f"{self.ratio:.2f}"
        held = {None: "", True: "held", False: "missed"}[self.held]
        return f"| {self.what} | {self.measured} | {self.beside} | {ratio} | {self.budget} | {held} |"
