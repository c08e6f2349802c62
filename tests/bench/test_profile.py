"""Questions and calls are counted by what they are for, up to the moment that counts."""

import unittest

from causes import LIBRARIES, LISTING, NOTES, OTHER_FILES, SKIN, cause_of_path
from server_questions import REGISTRY, SETTINGS, TRAY, questions_by_cause
from system_calls import MEMORY, SCREEN, SERVER, calls_by_cause

SERVER_LOG = r"""
0024: init_first_thread( unix_pid=7, unix_tid=7, debug_level=0, reply_fd=7, wait_fd=9 )
0024: init_first_thread() = 0 { pid=0020, tid=0024 }
0030: init_first_thread( unix_pid=8, unix_tid=8, debug_level=0, reply_fd=7, wait_fd=9 )
0024: create_file( access=80100080, objattr={rootdir=0000,name=L"\\??\\Z:\\x\\Kalvora\\notes\\Milk.txt"}, filename="/x" )
0030: create_file( access=80100080, objattr={rootdir=0000,name=L"\\??\\Z:\\x\\Kalvora\\notes\\Milk.txt"}, filename="/x" )
0024: create_file() = 0 { handle=0064 }
0024: *fd* 0064 -> 20
0024: get_handle_fd( handle=0064 )
0024: get_handle_fd() = 0 { type=1, cacheable=1, access=00120089 }
0024: close_handle( handle=0064 )
0024: close_handle() = 0
0024: open_key( parent=0010, access=00020019, name=L"Software\\Kalvora\\Graph" )
0024: open_key() = 0 { hkey=0064 }
0024: get_key_value( hkey=0064, name=L"ShWatS" )
0024: get_key_value() = 0 { type=1, total=10, data={} }
0024: open_key( parent=0010, access=00020019, name=L"Software\\Wine" )
0024: new_thread( process=ffffffff, access=001fffff )
0024: new_thread() = 0 { tid=0054, handle=0070 }
0054: create_window( parent=00010020, class=L"KalvoraTray" )
0054: send_message( id=0050, type=8, msg=0000004a, win=00010072 )
""".splitlines()

CALLS = """
7 100.10 newfstatat(AT_FDCWD</x/Kalvora/notes>, "Milk.txt", {st_size=9}, AT_SYMLINK_NOFOLLOW) = 0
7 100.11 getdents64(16</x/Kalvora/notes>, 0x9f78ea80 /* 102 entries */, 32768) = 5648
7 100.12 read(14</x/Kalvora/notes/Milk.txt>, "4|10|/x/Kalvora/skins", 32768) = 103
7 100.13 newfstatat(AT_FDCWD</x/Kalvora>, "/x/prefix/dosdevices/z:/x/Kalvora/skins/Plain", {}, 0) = 0
7 100.14 write(5<pipe:[1]>, "T", 64) = 64
7 100.15 rt_sigprocmask(SIG_BLOCK, [HUP], [], 8) = 0
7 100.16 recvmsg(4<socket:[2]>, {msg_control=[{cmsg_type=SCM_RIGHTS, cmsg_data=[14]}]}, 0) = 4
7 100.17 writev(12<socket:[3]>, [{iov_base="<"}], 1) = 1
7 100.18 mmap(NULL, 4096, PROT_READ, MAP_PRIVATE|MAP_ANONYMOUS, -1, 0) = 0x7f
7 100.19 mmap(NULL, 4096, PROT_READ, MAP_PRIVATE, 9</usr/lib/libX11.so.6.4.0>, 0) = 0x7f
7 100.30 read(14</x/Kalvora/notes/Milk.txt>, "", 32768) = 0
""".splitlines()


class ProfileTest(unittest.TestCase):
    def test_questions_count_for_what_their_handle_was_given(self):
        self.assertEqual(questions_by_cause(SERVER_LOG, 7)[NOTES], 3)

    def test_a_handle_given_again_has_its_new_cause(self):
        found = questions_by_cause(SERVER_LOG, 7)
        self.assertEqual((found[SETTINGS], found[REGISTRY]), (2, 1))

    def test_later_threads_of_the_process_count(self):
        self.assertEqual(questions_by_cause(SERVER_LOG, 7)[TRAY], 2)

    def test_other_processes_do_not_count(self):
        self.assertEqual(questions_by_cause(SERVER_LOG, 8)[NOTES], 1)

    def test_a_process_that_is_not_in_the_log_is_a_failure(self):
        with self.assertRaises(RuntimeError):
            questions_by_cause(SERVER_LOG, 9)

    def test_calls_count_for_what_they_touch(self):
        found = calls_by_cause(CALLS, 100.25)
        self.assertEqual(dict(found), {LISTING: 2, NOTES: 1, SKIN: 1, SERVER: 3, SCREEN: 1, MEMORY: 1, LIBRARIES: 1})

    def test_calls_after_the_end_do_not_count(self):
        self.assertEqual(calls_by_cause(CALLS, 100.35)[NOTES], 2)

    def test_paths_of_both_systems(self):
        for path in ("/x/Kalvora/notes", r"\\??\\Z:\\x\\Kalvora\\notes", r"Z:\x\Kalvora\notes\\"):
            self.assertEqual(cause_of_path(path), LISTING)
        self.assertEqual(cause_of_path("/x/Kalvora/other"), OTHER_FILES)


if __name__ == "__main__":
    unittest.main()
