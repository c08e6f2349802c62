"""If this fails, a user who ticked "Keep what I type" and goes by the keyboard loses what was typed, also with the end of
the Windows session."""

from coming import WhatComes
from drafts import drafts
from editor import CONTENT, NAME, TITLE as EDITOR, Editor, wait_for_files
from kalvora import TEXT, Kalvora
from trouble import QUIET

NOTES = {"Gym.tx1": "7|30|Mat", "Milk.txt": "8|40|Two"}
SETTINGS = {**QUIET, "Comfort": {"Keep_typing": "True"}}
FAST = 4


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


def the_list_of_what_comes_leaves_a_page(program, files):
    """Opened by F4; Enter opens a row's note in the editor, first Gym, then Milk."""
    program.main.control(TEXT).click()
    program.screen.key("F4")
    comes = WhatComes(program)
    program.wait_until(lambda: comes.count >= 2, "the rows")
    program.screen.key("Home", "Return")
    program.wait_until(lambda: program.windows(title=EDITOR), "the editor")
    editor = program.window(title=EDITOR)
    content = editor.control(CONTENT)
    program.wait_until(lambda: content.text == "Mat and towel", "the note in the editor")
    # From the list of names on: the name, the two numbers of the time, the half of the day is switched off.
    program.screen.key("alt+n")
    program.wait_until(lambda: editor.control(NAME).text == "New", "a new page")
    type_over(program, "Soup")
    program.wait_until(lambda: editor.control(NAME).text == "Soup", "the typed name")
    program.screen.key("ctrl+Tab")
    files["Soup.tx1"] = b"||"
    wait_for_files(program, files)
    program.screen.key("Escape")
    program.wait_until(lambda: not editor.exists, "the editor to close")


def the_end_of_the_session_saves(program, files):
    """What is typed in the editor; nobody is asked."""
    editor = Editor(program)
    program.screen.key("Down", "Up")
    editor.wait_for_text(NAME, "Gym")
    editor.fill(CONTENT, "Shoes")
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
    the_list_of_what_comes_leaves_a_page(program, files)
    the_end_of_the_session_saves(program, files)
    typed_in_the_main_window_too(program, files)
