"""If this fails, what was typed on a page of the note editor and not saved is lost: by a click on another name, by
New, by closing the editor in whatever way, or with the end of the program."""

from drafts import drafts, wait_for_draft
from editor import CLOSE, CONTENT, DELETE, EXTENSIONS, KINDS, NAME, NEW, Editor, started
from editor_pages import FILLS

NOTES = {"Other" + extension: "" for extension in EXTENSIONS}


def go_to(editor, kind):
    if editor.kind != kind:
        editor.choose_tab(kind)


def fill_page(editor, kind, name):
    """Types into every field of a page; the draft that this is to leave."""
    go_to(editor, kind)
    editor.fill(NAME, name)
    return name + EXTENSIONS[kind], FILLS[kind](editor)


def type_name_and_text(editor, kind, name):
    """Where only the way of leaving is new; every field of each page is typed into above."""
    go_to(editor, kind)
    editor.fill(NAME, name)
    editor.fill(CONTENT, f"words of {name}")
    return name + EXTENSIONS[kind], f"words of {name}".encode()


def another_name_and_new(program, editor):
    for kind in range(len(KINDS)):
        typed = fill_page(editor, kind, "Another name")
        editor.pick("Other")
        wait_for_draft(program, *typed, f"another name on {KINDS[kind]}")
        editor[NEW].click()
        editor.wait_for_text(NAME, "New")
        typed = fill_page(editor, kind, "By New")
        editor[NEW].click()
        editor.wait_for_text(NAME, "New")
        wait_for_draft(program, *typed, f"New on {KINDS[kind]}")


def closing(program, editor, way, leave, fill=type_name_and_text):
    """Fills all pages, leaves, and opens the editor again."""
    typed = [fill(editor, kind, way) for kind in range(len(KINDS))]
    leave()
    editor.wait_until_closed()
    for name, content in typed:
        program.wait_until(lambda name=name, content=content: any(
            name == kept and bytes_.endswith(content) for kept, bytes_ in drafts(program)),
                           f"the draft {name} after: {way}, there are {drafts(program)}")
    return Editor(program)


def deleting_and_closing(program, editor):
    """The page keeps what was typed over the deleted note; closing drops it."""
    editor.pick("Other")
    editor.fill(CONTENT, "typed over what is deleted")
    editor[DELETE].click()
    editor.wait_for_names()
    assert editor[CONTENT].text == "typed over what is deleted"
    editor.close()
    wait_for_draft(program, "Other.tx1", b"||typed over what is deleted", "Delete and Close")
    return Editor(program)


def the_end_of_the_program(program, editor):
    typed = [type_name_and_text(editor, kind, "Exit") for kind in range(len(KINDS))]
    assert program.end() == 0
    for name, content in typed:
        assert any(name == kept and bytes_.endswith(content) for kept, bytes_ in drafts(program)), drafts(program)


with started(notes=NOTES) as program:
    editor = Editor(program)
    another_name_and_new(program, editor)
    editor = closing(program, editor, "Close", editor[CLOSE].click, fill_page)
    editor = closing(program, editor, "Esc", lambda: program.screen.key("Escape"))
    editor = closing(program, editor, "X", editor.window.close)
    editor = deleting_and_closing(program, editor)
    assert not editor.message_boxes
    the_end_of_the_program(program, editor)
    program.start_and_wait_for_tray()
