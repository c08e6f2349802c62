"""If this fails, a note that was saved without a name is lost: it is not listed, not opened, or not deleted."""

from editor import CONTENT, DAILY_TIME, DELETE, NAME, Editor, note_files, started, wait_for_files

GYM = {"Gym.tx1": b"7|30|Run"}

# What is typed is kept otherwise: a note that nobody named is called by its first words then.
with started(notes=GYM, unticked=("Keep_typing",)) as program:
    editor = Editor(program)
    editor.new("x")
    editor.fill(NAME, "")
    editor.fill(DAILY_TIME, "8")
    editor.fill(DAILY_TIME + 1, "15")
    editor.fill(CONTENT, "Nameless")
    editor.save()
    wait_for_files(program, GYM | {".tx1": b"8|15|Nameless"})
    editor.wait_for_names("", "Gym")
    editor.pick("Gym")
    editor.wait_for_text(CONTENT, "Run")
    editor.pick("")
    editor.wait_for_text(CONTENT, "Nameless")
    program.keep_picture("editor-no-name")
    editor[DELETE].click()
    wait_for_files(program, GYM)
    editor.wait_for_names("Gym")

    # Named at last.
    editor.save()
    editor.wait_for_names("", "Gym")
    editor.pick("")
    editor.fill(NAME, "Swim")
    editor.save()
    wait_for_files(program, GYM | {"Swim.tx1": b"8|15|Nameless"})
    editor.wait_for_names("Gym", "Swim")
    assert not editor.message_boxes and note_files(program).keys() == {"Gym.tx1", "Swim.tx1"}
    editor.close()
