"""Works that are measured one after the other, so that a slow moment of the machine meets them alike."""


def in_turns(works, repetitions):
    """The figures of each work, in the order of the works. Each is done once more at first, which only fills the
    caches; every other round goes backwards, so that none always comes after the same."""
    for work in works:
        work()
    figures = [[] for _ in works]
    for repetition in range(repetitions):
        order = range(len(works)) if repetition % 2 == 0 else reversed(range(len(works)))
        for number in order:
            figures[number].append(works[number]())
    return figures
