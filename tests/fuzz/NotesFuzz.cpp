// A note file of any bytes, as its readers see it: the main window, the editor and the alarms. The
// input's first letter is A to E for the first five kinds in 24-hour time, F to J in 12-hour time,
// and K and L for notes for one date.
#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "FuzzCheck.h"
#include "alarms/AlarmCheck.h"
#include "base/Errors.h"
#include "fakes/FakeAlarmHost.h"
#include "fakes/FakeAll_Notes_frmView.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeNoteFolder.h"
#include "fakes/MemoryFiles.h"
#include "fakes/MemorySettingsStore.h"
#include "notes/NotePageReader.h"
#include "notes/NotePageWriter.h"
#include "notes/NoteReader.h"
#include "notes/NoteWriter.h"

namespace kalvora {
namespace {

const Windows1252 kCodePage;

struct AnyNote {
  NoteKind kind;
  HourFormat format;
  std::string_view bytes;

  std::wstring fileName() const { return L"a" + std::wstring(extensionOf(kind)); }
};

AnyNote noteOf(std::string_view input) {
  const unsigned letter = (static_cast<unsigned char>(input.front()) - unsigned{'A'}) % 12U;
  const bool isOnce = letter >= 10U;
  const bool in24Hours = isOnce ? letter == 10U : letter < 5U;
  return {isOnce ? NoteKind::Once : kNoteKinds.at(letter % 5U),
          in24Hours ? HourFormat::Hours24 : HourFormat::Hours12, input.substr(1)};
}

/// The last field as a file can hold it: line ends are whole, and where nothing is written nothing
/// is found again.
std::wstring asWritten(const std::wstring& content) {
  if (content.empty()) return std::wstring(1, L'\0');
  std::wstring written;
  for (const wchar_t c : content) {
    if (c == L'\n' && !written.ends_with(L'\r')) written += L'\r';
    written += c;
  }
  return written;
}

NoteFields checkFields(const AnyNote& note) {
  NoteFields fields = readFields(note.kind, note.bytes, kCodePage);
  NoteFields expected = fields;
  std::wstring& content = *inFileOrder(expected).back();
  content = asWritten(content);
  const NoteFields again = readFields(note.kind, joinFields(fields, kCodePage), kCodePage);
  require(again == expected, "the fields that are written are read again");
  require(readFields(note.kind, joinFields(again, kCodePage), kCodePage) == again,
          "what was written once stays as it is");
  return fields;
}

bool holdsNul(std::wstring_view text) {
  return text.find(L'\0') != std::wstring_view::npos;
}

void checkMainWindow(const AnyNote& note, NoteFields fields) {
  const ShownNote shown = readNote(note.fileName(), note.bytes, kCodePage, note.format, kNoteKinds);
  require(shown.title == L"a", "the title is the file's name");
  require(!holdsNul(shown.text) && !holdsNul(shown.time), "no NUL is shown");
  require(shown.text == withoutNuls(*inFileOrder(fields).back()), "the text is the last field");
  const ShownNote toOthers =
      readNote(note.fileName(), note.bytes, kCodePage, note.format, knownKinds({}));
  require(note.kind == NoteKind::Once ? toOthers == ShownNote{L"a", {}, {}, {}} : toOthers == shown,
          "who has no notes for one date sees its title");
  require(hasClockTime(note.kind) || shown.time.empty(), "only some kinds have a time");
  require(note.format == HourFormat::Hours12 || !shown.half, "24-hour time has no halves");
}

/// The note editor with one note, "a".
class EditorWithNote {
 public:
  explicit EditorWithNote(const AnyNote& note) : note_(note) {
    files_.content[note.fileName()] = std::string(note.bytes);
    state_.hourFormat = note.format;
  }

  /// Reads the note onto its page.
  void read() {
    NotePageReader reader(folder_, kCodePage, clock_, view_, state_);
    reader.Inicjuj_czytanie(note_.kind, L"a");
    for (const PageField& field : editorPage(note_.kind).fields) reader.Czytaj_zmienna(field);
    reader.Zakoncz_czytanie();
    require(view_.errors.empty(), "a small note is not refused");
    for (const auto& [control, shown] : view_.controls) {
      require(!holdsNul(shown.text), "no NUL is shown in a control");
    }
  }

  /// Saves the page. False where its hour is beyond 16 bits.
  bool save() {
    NotePageWriter writer(folder_, kCodePage, view_, state_);
    const std::string before = bytes();
    try {
      writer.Inicjuj_zapisywanie(note_.kind);
      for (const PageField& field : editorPage(note_.kind).fields) writer.Zapisz_zmienna(field);
      writer.Zakoncz_zapisywanie();
    } catch (const OverflowError&) {
      require(bytes() == before, "a note that cannot be saved stays as it was");
      return false;
    }
    require(files_.content.size() == 1, "a save leaves one file");
    return true;
  }

  const std::string& bytes() const { return files_.content.at(note_.fileName()); }
  const FakeAll_Notes_frmView::Controls& page() const { return view_.controls; }

 private:
  const AnyNote& note_;
  const FakeClock clock_{LocalTime{2026, 3, 2, 1, 7, 30, 0}};
  MemoryFiles files_;
  NoteFolder folder_{"notes", files_, files_};
  FakeAll_Notes_frmView view_;
  EditorState state_;
};

/// The first save may mend a damaged note; from then on it stays.
void checkEditor(const AnyNote& note) {
  EditorWithNote editor(note);
  editor.read();
  if (!editor.save()) return;
  const std::string mended = editor.bytes();
  editor.read();
  const FakeAll_Notes_frmView::Controls page = editor.page();
  require(editor.save() && editor.bytes() == mended, "a mended note is saved as it is");
  editor.read();
  require(editor.page() == page, "a mended note is shown as it was");
}

void checkAlarms(const AnyNote& note, const Comfort& comfort) {
  FakeNoteFolder folder;
  folder.notes[note.fileName()] = std::string(note.bytes);
  folder.notes[L"z.tx2"] = "7|30|1|1|1|1|1|1|1|";
  folder.notes[L"z.tx4"] = "2|2|||";
  folder.notes[L"z.tx5"] = "2026|3|2|7|30|";
  const FakeClock clock(LocalTime{2026, 3, 2, 1, 7, 30, 0});
  FakeAlarmHost host;
  MemorySettingsStore store;
  AlarmCheck alarms({folder, kCodePage, clock, "notes", comfort, store}, host);
  alarms.updateAtStart(folder.listed());
  // Days that no month has can ring so often that the queue is full.
  const bool full = alarms.pending() == std::numeric_limits<std::int16_t>::max();
  alarms.tellFaults();
  require(host.calls.size() <= 2, "a faulty note is told once a reading");
  const std::vector<std::wstring> rang = host.putAwayAll(alarms);
  require(full || std::ranges::count(rang, L"z.tx4") == 1, "a sound yearly note rings");
  require(full || std::ranges::count(rang, L"z.tx2") == 1, "a sound weekly note rings");
  const std::wstring last = comfort.Once_notes ? L"z.tx5" : L"z.tx2";
  require(!rang.empty() && (full || rang.back() == last), "the last note of the table rings");
}

}  // namespace
}  // namespace kalvora

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kalvora;
  // A larger one is refused before it is read, by a rule that has its own tests.
  if (size == 0 || size > kLargestNoteSize / 2) return 0;
  const AnyNote note = noteOf(bytesOf(data, size));
  checkMainWindow(note, checkFields(note));
  checkEditor(note);
  checkAlarms(note, {});
  if (note.kind == NoteKind::Once) checkAlarms(note, {.Once_notes = true});
  return 0;
}
