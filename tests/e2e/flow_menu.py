"""If this fails, an item of the menu does not open its window, Exit does not end the program, or the menu
takes the end of something else's click for its own."""

from kalvora import MENU_CLASS, MENU_ITEMS, MENU_TEXT_LEFT, Kalvora


def press_elsewhere(program):
    """The button goes down on the bar or on another item, and up on "About"."""
    for x, item in ((10, "About"), (MENU_TEXT_LEFT, "Exit")):
        menu = program.open_menu()
        menu.press(x, MENU_ITEMS[item])
        program.screen.move(*menu.on_screen(MENU_TEXT_LEFT, MENU_ITEMS["About"]))
        program.screen.release()
        # The next click is heard of after that release.
        menu.click(MENU_TEXT_LEFT, MENU_ITEMS["Options"])
        options = program.window(title="Kalvora Options")
        assert not program.windows(title="About Kalvora")
        options.close()
        program.wait_until(lambda one=options: not one.visible, "the options to go")


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

    press_elsewhere(program)

    # The pointer leaves the menu: it closes without any action.
    program.open_menu()
    program.keep_picture("menu")
    program.screen.move(5, 5)
    program.wait_until(lambda: not program.windows(MENU_CLASS), "the menu to go")
    assert program.running
    program.shows("a")
    assert program.end() == 0
    assert not program.tray.there
