"""If this fails, a note that is made in the editor is not the file that it should be: for some kind what was
typed is not what is stored, a renamed note is there twice, or a deleted one stays or cannot be saved again."""

from editor import (CONTENT, DAILY_TIME, DELETE, EXTENSIONS, FAST_TIME, HALF_OF_DAY, MONTH, MONTHLY_DAY, NAME,
                    WEEKLY_TIME, YEARLY_DAY, Editor, note_files, started, wait_for_files)


def fill_daily(editor):
    editor.fill(DAILY_TIME, "07")
    editor.fill(DAILY_TIME + 1, "30")
    editor.choose_letter(HALF_OF_DAY, "p", 1)
    editor.fill(CONTENT, "Pills\nTwo of them")
    return b"19|30|Pills\r\nTwo of them"


def fill_weekly(editor):
    editor.fill(WEEKLY_TIME, "7")
    editor.fill(WEEKLY_TIME + 1, "30")
    editor.tick("Monday", "Friday")
    editor.fill(CONTENT, "Gym")
    return b"7|30|0|1|0|0|0|1|0|Gym"


def fill_monthly(editor):
    editor.fill(MONTHLY_DAY, "20")
    editor.fill(MONTHLY_DAY + 1, "6")
    editor.fill(MONTHLY_DAY + 2, "2")
    editor.fill(CONTENT, "Rent")
    return b"20|6|2|Rent"


def fill_yearly(editor):
    editor.fill(YEARLY_DAY, "14")
    editor.choose_letter(MONTH, "d", 11)
    editor.fill(YEARLY_DAY + 1, "21")
    editor.fill(YEARLY_DAY + 2, "7")
    editor.fill(CONTENT, "Cake")
    return b"14|11|21|7|Cake"


def fill_fast(editor):
    editor.fill(FAST_TIME, "12")
    editor.fill(FAST_TIME + 1, "05")
    editor.choose_letter(HALF_OF_DAY + 2, "p", 1)
    editor.fill(CONTENT, "Bread | butter")
    return b"24|05|Bread | butter"


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
    for kind, fill in enumerate((fill_daily, fill_weekly, fill_monthly, fill_yearly, fill_fast)):
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
