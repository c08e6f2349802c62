"""If this fails, an item of the menu does not open its window, or Exit does not end the program."""

from kalvora import MENU_CLASS, Kalvora

with Kalvora(notes={"a.txt": "||Alpha", "b.tx1": "7|30|Bravo"}) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    for item, title in (("Edit All Notes", "Edit Notes"), ("Options", "Options"), ("About", "About")):
        program.choose(item)
        program.wait_until(lambda: not program.windows(MENU_CLASS), "the menu to go")
        window = program.wait_until(
            lambda: [one for one in program.windows() if title in one.text], f"the window {title}")[0]
        program.keep_picture("menu-" + title.lower().replace(" ", "-"))
        window.close()
        program.wait_until(lambda: not window.visible, f"the window {title} to go")

    # The pointer leaves the menu: it closes without any action.
    program.open_menu()
    program.keep_picture("menu")
    program.screen.move(5, 5)
    program.wait_until(lambda: not program.windows(MENU_CLASS), "the menu to go")
    assert program.running
    program.shows("a")
    assert program.end() == 0
    assert not program.tray.there
