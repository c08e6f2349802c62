"""Grain of paper, weave of cloth, scratches of metal: the same every time, because the seed is fixed."""

import math
import random


def _smooth(values, length):
    """Running mean over a ring of values."""
    count = len(values)
    return [sum(values[(i + k) % count] for k in range(length)) / length for i in range(count)]


def paper_grain(width, height, seed):
    """Brightness to add, row by row: fine tooth, slow clouds and a few fibres."""
    rng = random.Random(seed)
    tooth = [[rng.uniform(-1.6, 1.6) for _ in range(width)] for _ in range(height)]
    _add_clouds(tooth, rng, 23, 1.6)
    for _ in range(width * height // 420):
        _add_fibre(tooth, rng)
    return tooth


def _add_clouds(field, rng, step, strength):
    height, width = len(field), len(field[0])
    grid = [[rng.uniform(-strength, strength) for _ in range(width // step + 2)] for _ in range(height // step + 2)]
    for y in range(height):
        row, v = divmod(y, step)
        for x in range(width):
            column, u = divmod(x, step)
            s, t = _ease(u / step), _ease(v / step)
            top = grid[row][column] * (1 - s) + grid[row][column + 1] * s
            bottom = grid[row + 1][column] * (1 - s) + grid[row + 1][column + 1] * s
            field[y][x] += top * (1 - t) + bottom * t


def _ease(t):
    return t * t * (3 - 2 * t)


def _add_fibre(field, rng):
    height, width = len(field), len(field[0])
    x, y = rng.uniform(0, width), rng.uniform(0, height)
    angle, bend = rng.uniform(0, math.pi), rng.uniform(-0.15, 0.15)
    strength = rng.choice((-5.0, -3.5, 3.0))
    for _ in range(rng.randint(4, 11)):
        if 0 <= int(x) < width and 0 <= int(y) < height:
            field[int(y)][int(x)] += strength
        x, y, angle = x + math.cos(angle), y + math.sin(angle), angle + bend


def cloth_weave(width, height, seed):
    """Brightness to add: threads over and under one another, each of uneven thickness."""
    rng = random.Random(seed)
    across = [_smooth([rng.uniform(-16, 16) for _ in range(width)], 6) for _ in range(height)]
    down = [_smooth([rng.uniform(-16, 16) for _ in range(height)], 6) for _ in range(width)]
    return [[across[y][x] + 1.8 if (x + y) % 2 else down[x][y] - 1.8 for x in range(width)] for y in range(height)]


def brushed_metal(width, height, seed):
    """Brightness to add: fine scratches from side to side, none of them quite as long as the sheet."""
    rng = random.Random(seed)
    rows = []
    for _ in range(height):
        line = rng.uniform(-3.5, 3.5)
        scratches = _smooth([rng.uniform(-26, 26) for _ in range(width)], 19)
        rows.append([line + scratch for scratch in scratches])
    return rows


def add(picture, field, mask):
    """Adds the field to an RGB picture, weighted by a mask of 0 to 255."""
    pixels, weights = picture.load(), mask.load()
    for y in range(picture.height):
        for x in range(picture.width):
            weight = weights[x, y] / 255
            if weight:
                shift = round(field[y][x] * weight)
                pixels[x, y] = tuple(min(255, max(0, value + shift)) for value in pixels[x, y])
