"""If this fails, the window rolls jerkily, shows half a note area, or ends in the wrong outline."""

from driver import DESKTOP_COLOUR
from kalvora import AM_PM, TEXT, TIME, TITLE, Kalvora

# Slow, with small steps, so that pictures of the way can be taken.
SETTINGS = {"Graph": {"Window_X": "300", "Window_Y": "200", "Win1_Jump": "100", "Window2_interval": "400",
                      "Win2_Jump": "16"}}
STEP = 16
FULL, ROLLED = 363, 43
INSIDE = 12  # pixels from the side of the window, inside its outline


def picture(program):
    """
    The part of the screen where the whole window may be, and how high the window was just then. What is on the screen
    can be a little later than the window: it must be the same twice.
    """
    left, top, width, _ = program.main.place
    seen = None
    while True:
        height = program.main.place[3]
        shot = program.screen.picture().crop((left, top, left + width, top + FULL))
        now = (shot, program.main.place[3])
        if now == seen and now[1] == height:
            return now
        seen = now


def lowest_row(shot):
    """The lowest row at which something of the window is to be seen, counted from 1."""
    column = [shot.getpixel((shot.width // 2, y)) for y in range(shot.height)]
    return max(y + 1 for y, pixel in enumerate(column) if pixel != DESKTOP_COLOUR)


def expect_same_up_to(shot, whole, height, when, left_behind=0):
    """
    The window shows its upper part as it is when it stands, whatever its height. Of what it just gave up, so many rows
    may be seen still: the desktop behind it is painted by another program, which may be late.
    """
    # Of the title and the boxes the texts may be on their way; the sides show the ground.
    for x in (INSIDE, shot.width - INSIDE):
        for y in range(20, height - 1):
            assert shot.getpixel((x, y)) == whole.getpixel((x, y)), f"{when}: pixel {x}, {y}"
    lowest = min(height, lowest_row(whole))  # the outline may end above the lowest row of the window
    assert lowest <= lowest_row(shot) <= lowest + left_behind, f"{when}: seen down to {lowest_row(shot)}, not {lowest}"


def pictures_of_a_roll(program, end):
    """
    Presses the button and takes pictures until the window has its height at the end. Of each height the last picture
    counts: the first ones may come before the window painted itself.
    """
    program.press("Rool Down/Up")
    program.screen.move(5, 5)  # or the button's tip would lie over the window
    shots, heights = {}, []

    def ended():
        shot, height = picture(program)
        shots[height] = shot
        heights.append(height)
        return height == end

    program.wait_until(ended, f"the window to be {end} high")
    assert heights in (sorted(heights), sorted(heights, reverse=True)), heights
    return shots


def expect_the_way(shots, whole):
    between = [(shot, height) for height, shot in shots.items() if ROLLED < height < FULL]
    assert len(between) >= 5, f"too few pictures of the way: {list(shots)}"
    middle = min(between, key=lambda one: abs(one[1] - (FULL + ROLLED) // 2))
    assert 100 < middle[1] < 300, list(shots)
    for shot, height in between:
        expect_same_up_to(shot, whole, height, f"on the way, {height} high", left_behind=STEP)


def has_outline_of_the_strip(program):
    """The last row of a shape picture is no part of the outline, but the note area goes on there."""
    main = program.main
    return not main.covers(main.place[2] // 2, ROLLED - 1) and main.covers(main.place[2] // 2, ROLLED - 2)


def expect_the_strip(program):
    program.wait_until(lambda: has_outline_of_the_strip(program), "the outline of the title strip")
    program.wait_until(lambda: lowest_row(picture(program)[0]) == ROLLED - 1, "the title strip alone")
    for number in (TITLE, TEXT, TIME, AM_PM):
        assert not program.main.control(number).visible, f"the field {number} is still there"


with Kalvora(notes={"a.txt": "7|30|Alpha"}, settings=SETTINGS) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    program.screen.move(5, 5)
    whole, height = picture(program)
    assert height == FULL and not has_outline_of_the_strip(program)

    up = pictures_of_a_roll(program, ROLLED)
    assert program.main.place == (300, 200, 320, ROLLED)
    expect_the_way(up, whole)
    expect_the_strip(program)

    down = pictures_of_a_roll(program, FULL)
    assert program.main.place == (300, 200, 320, FULL)
    expect_the_way(down, whole)
    assert not has_outline_of_the_strip(program) and program.main.control(TEXT).visible
    shot, _ = picture(program)
    expect_same_up_to(shot, whole, FULL, "at the end")

    # In the middle of a roll the fields of the note are there, down to where the window is.
    program.press("Rool Down/Up")
    program.wait_until(lambda: program.main.place[3] < 250, "the middle of the roll")
    assert program.main.control(TEXT).visible
    program.wait_until(lambda: program.main.place[3] == ROLLED, "the end of the roll")
    assert program.end() == 0

# A window that comes out as a title strip rolls down by itself for a user who wants that.
STRIP = {"Graph": {**SETTINGS["Graph"], "WysRZF1": "False", "AShT": "True"}}
with Kalvora("rolling-by-itself", settings=STRIP) as program:
    program.start_and_wait_for_tray()
    program.tray.double_click()
    program.wait_until(lambda: program.main.visible and program.main.place[3] == ROLLED, "the strip")
    program.wait_until(lambda: program.main.place[3] == FULL, "the note area to roll down")
    assert program.main.place[:2] == (300, 200)
    assert program.end() == 0
