"""If this fails, a user who ticked "Keep what I type" and goes by the keyboard loses what was typed, also with the end of
the Windows session."""

from coming import ROWS, WhatComes
from drafts import drafts
from editor import CONTENT, NAME, TITLE as EDITOR, wait_for_files
from kalvora import TEXT, Kalvora
from trouble import QUIET

NOTES = {"Gym.tx1": "7|30|Mat", "Milk.txt": "8|40|Two"}
SETTINGS = {**QUIET, "Comfort": {"Keep_typing": "True"}}


def type_over(program, text):
    program.screen.key("ctrl+a", "Delete")
    program.screen.type(text)


def alt_f4_saves(program, files):
    program.main.control(TEXT).click()  # The keyboard is the window's.
    type_over(program, "Mat and towel")
    program.wait_until(lambda: program.main.control(TEXT).text == "Mat and towel", "the typed text")
    program.screen.key("alt+F4")
    program.wait_until(lambda: not program.main.visible, "the window to go")
    files["Gym.tx1"] = b"7|30|Mat and towel"
    wait_for_files(program, files)
    program.open_window()
    program.shows("Gym")


def open_first_row(program):
    """F4 opens the list of what comes, and Enter the note of its first row in the editor."""
    program.main.control(TEXT).click()
    program.screen.key("F4")
    comes = WhatComes(program)
    program.wait_until(lambda: comes.count >= 2, "the rows")
    program.screen.key("Home", "Return")
    editor = program.window(title=EDITOR)
    program.wait_until(lambda: editor.control(NAME).text == "Gym", "the note in the editor")
    return comes, editor


def another_page_saves_the_one_before(program, files):
    comes, editor = open_first_row(program)
    assert editor.control(CONTENT).text == "Mat and towel"
    program.screen.key("alt+n")
    program.wait_until(lambda: editor.control(NAME).text == "New", "a new page")
    type_over(program, "Soup")
    program.wait_until(lambda: editor.control(NAME).text == "Soup", "the typed name")
    program.screen.key("ctrl+Tab")
    files["Soup.tx1"] = b"||"
    wait_for_files(program, files)
    program.screen.key("Escape")
    program.wait_until(lambda: not editor.exists, "the editor to close")
    program.wait_until(lambda: comes.focus == comes[ROWS].handle, "the keyboard in the list again")
    program.screen.key("Escape")
    program.wait_until(lambda: not comes.window.exists, "the list to close")


def the_end_of_the_session_saves(program, files):
    """What is typed in the editor; nobody is asked."""
    _, editor = open_first_row(program)
    program.screen.key("alt+x", "ctrl+Home", "ctrl+shift+End", "Delete")
    program.screen.type("Shoes")
    program.wait_until(lambda: editor.control(CONTENT).text == "Shoes", "the typed text")
    program.wine.spawn(["wineboot", "--end-session"], program.folder, {})
    program.exit_code()
    files["Gym.tx1"] = b"7|30|Shoes"
    wait_for_files(program, files)


def typed_in_the_main_window_too(program, files):
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("Gym")
    program.main.control(TEXT).click()  # The keyboard is the window's.
    type_over(program, "Socks")
    program.wait_until(lambda: program.main.control(TEXT).text == "Socks", "the typed text")
    program.wine.spawn(["wineboot", "--end-session"], program.folder, {})
    program.exit_code()
    files["Gym.tx1"] = b"7|30|Socks"
    wait_for_files(program, files)
    assert drafts(program) == set(), drafts(program)


with Kalvora(notes=NOTES, settings=SETTINGS, clock="2026-11-21 06:41:00") as program:
    files = {name: text.encode() for name, text in NOTES.items()}
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("Gym")
    alt_f4_saves(program, files)
    another_page_saves_the_one_before(program, files)
    the_end_of_the_session_saves(program, files)
    typed_in_the_main_window_too(program, files)
