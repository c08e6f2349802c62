"""A panel that takes the tray icons in, as a desktop has one. Without it Wine shows them in a strip of its own."""

import contextlib

from desktop import end, spawn, wait_until

SELECTION = "_NET_SYSTEM_TRAY_S0"


@contextlib.contextmanager
def tray_host(program, mappings):
    """While the block runs, the screen has such a panel."""
    log = program.folder.parent / "tray-host.log"
    host = spawn(["trayer", "--edge", "bottom"], log, env=program.screen.environment)
    try:
        wait_until(lambda: mappings.owner_of(SELECTION), "the tray host")
        yield
        assert host.poll() is None, f"the tray host has ended, see {log}"
    finally:
        end(host)


def no_tray_host(_program, _mappings):
    """A screen without such a panel."""
    return contextlib.nullcontext()
