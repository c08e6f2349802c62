"""If this fails, a note that is made in the editor is not the file that it should be: for some kind what was
typed is not what is stored, a renamed note is there twice, or a deleted one stays or cannot be saved again."""

from editor import DELETE, EXTENSIONS, NAME, Editor, note_files, started, wait_for_files
from editor_pages import FILLS


def name_follows_the_files(program, editor, kind, body):
    """Renames the note on the page, deletes it, and saves it again."""
    others = {name: data for name, data in note_files(program).items() if not name.endswith(EXTENSIONS[kind])}
    editor.fill(NAME, "Second")
    editor.save()
    renamed = others | {"Second" + EXTENSIONS[kind]: body}
    wait_for_files(program, renamed)
    editor.wait_for_names("Second")
    page = editor.texts()
    editor[DELETE].click()
    wait_for_files(program, others)
    editor.wait_for_names()
    assert editor.texts() == page, "the page keeps its texts"
    editor.save()
    wait_for_files(program, renamed)
    editor.wait_for_names("Second")


with started() as program:
    editor = Editor(program)
    for kind, fill in enumerate(FILLS):
        if kind > 0:
            editor.choose_tab(kind)
        before = note_files(program)
        editor.new("First")
        body = fill(editor)
        assert note_files(program) == before, "nothing is written before it is saved"
        editor.save()
        wait_for_files(program, before | {"First" + EXTENSIONS[kind]: body})
        editor.wait_for_names("First")
        name_follows_the_files(program, editor, kind, body)
        program.keep_picture(f"editor-{kind}")
    assert not editor.message_boxes
    editor.close()
