#include "notes/All_Notes_frm.h"

#include <algorithm>

#include "base/Errors.h"
#include "base/InputFilters.h"
#include "base/Text.h"
#include "notes/Draft.h"
#include "notes/EditorNotices.h"
#include "notes/NewNote.h"
#include "notes/NoteSaving.h"
#include "notes/NoteWriter.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kEmptyValueTitle = L"Empty value";
constexpr std::wstring_view kEmptyValueQuestion =
    L"You didn't enter the time or day to your note,\r"
    L"which means that this note will be without an alarm. \r\r Save ?";

constexpr std::wstring_view kGoneNotice = L"This note is gone.";
constexpr std::wstring_view kNewName = L"New";

/// Takes the form away at the end of a block, however it ends.
class UnloadAtEnd {
 public:
  explicit UnloadAtEnd(All_Notes_frm& form) : form_(form) {}
  ~UnloadAtEnd() { form_.unload(); }
  UnloadAtEnd(const UnloadAtEnd&) = delete;
  UnloadAtEnd& operator=(const UnloadAtEnd&) = delete;

 private:
  All_Notes_frm& form_;
};

}  // namespace

All_Notes_frm::All_Notes_frm(const EditorPorts& ports)
    : codePage_(ports.codePage),
      clock_(ports.clock),
      view_(ports.view),
      host_(ports.host),
      copies_(ports.copies),
      folder_(ports.notesFolder, ports.files, ports.writer),
      reader_(folder_, codePage_, clock_, view_, state_),
      writer_(folder_, codePage_, view_, state_),
      drafts_{draftOfPage(ports, NoteKind::Daily),   draftOfPage(ports, NoteKind::Weekly),
              draftOfPage(ports, NoteKind::Monthly), draftOfPage(ports, NoteKind::Yearly),
              draftOfPage(ports, NoteKind::Fast),    draftOfPage(ports, NoteKind::Once)},
      draftTimer_(ports.clock, [this](int interval) { view_.startDraftTimer(interval); }) {}

LiveDraft All_Notes_frm::draftOfPage(const EditorPorts& ports, NoteKind kind) const {
  return {ports.notesFolder, ports.files, codePage_, ports.copies,
          [this, kind] { return writer_.typed(kind); }};
}

void All_Notes_frm::Form_Load() {
  state_ = {};
  state_.kinds = host_.noteKinds();
  state_.hourFormat = host_.hourFormat();
  view_.createPages(state_.kinds);
  for (const EditorControl& control : controlsWithItems(state_.kinds)) {
    view_.setItems(control, itemsOf(control));
    if (control.array == ControlArray::AmPmCombo) {
      view_.setEnabled(control, state_.hourFormat == HourFormat::Hours12);
    }
    // January, and am; a number list stays empty.
    if (!isNumberList(control)) view_.select(control, 0);
  }
  // A control for dates is never empty.
  if (has(NoteKind::Once)) showEmptyNote(NoteKind::Once);
  draftTimer_.stopped();
  for (const NoteKind kind : state_.kinds) draft(kind).begin();
  view_.centre();
  showTab(NoteKind::Daily);
  host_.saveMainWindow();
  Update_Files(state_.kinds.front(), state_.kinds.back());
}

bool All_Notes_frm::Form_KeyDown(int keyCode, HeldKeys held) {
  if (held != HeldKeys::CtrlAlone) return false;
  if (keyCode == kFindKey) view_.startFinding();
  if (keyCode != kTabKey) return keyCode == kFindKey;
  const std::size_t next = (static_cast<std::size_t>(tab_) + 1) % state_.kinds.size();
  tbsOptions_Click(state_.kinds[next]);
  return true;
}

void All_Notes_frm::tbsOptions_Click(NoteKind tab) {
  // The tab that was clicked is in front already.
  if (tab != tab_ && !leave(tab_)) return view_.showPage(tab_);
  showTab(tab);
  // The folder may have been away for a while, as one on a drive that was not plugged in.
  if (File_list_[static_cast<std::size_t>(tab)].empty()) updateList(tab);
}

void All_Notes_frm::showTab(NoteKind tab) {
  view_.setNotice({});
  tab_ = tab;
  view_.showPage(tab);
}

void All_Notes_frm::fieldChanged() {
  draftTimer_.typed();
}

void All_Notes_frm::Draft_Timer() {
  view_.stopDraftTimer();
  draftTimer_.stopped();
  keepTyped();
  if (std::ranges::any_of(drafts_, &LiveDraft::isMissing)) draftTimer_.tryAgain();
}

void All_Notes_frm::keepTyped() noexcept {
  for (LiveDraft& draft : drafts_) draft.keep();
}

void All_Notes_frm::unload() noexcept {
  keepTyped();
  for (LiveDraft& draft : drafts_) draft.end();
  view_.unload();
}

void All_Notes_frm::File_list_box_Click(NoteKind kind) {
  view_.setNotice({});
  if (!leaveForChosen(kind)) return markLoadedNote(kind);
  try {
    readPage(kind);
  } catch (const FileError&) {
    // A note that another program took away leaves the list.
    updateList(kind);
    throw;
  }
  // A note that was refused is not the one on the page, to which Delete belongs.
  markLoadedNote(kind);
}

void All_Notes_frm::readPage(NoteKind kind) {
  // First, for it can give the chosen note another name.
  host_.saveMainWindow();
  if (const auto name = chosenName(kind)) readNote(kind, *name);
}

void All_Notes_frm::readNote(NoteKind kind, const std::wstring& name) {
  draft(kind).keep();
  if (!reader_.Inicjuj_czytanie(kind, name)) return;
  for (const PageField& field : editorPage(kind).fields) reader_.Czytaj_zmienna(field);
  reader_.Zakoncz_czytanie();
  draft(kind).begin();
}

void All_Notes_frm::writePage(NoteKind kind) {
  writer_.Inicjuj_zapisywanie(kind);
  for (const PageField& field : editorPage(kind).fields) writer_.Zapisz_zmienna(field);
  writer_.Zakoncz_zapisywanie();
  draft(kind).saved();
  if (state_.refreshMark == kNoRefresh) return;
  const auto marked = static_cast<NoteKind>(state_.refreshMark);
  Update_Files(marked, marked);
}

void All_Notes_frm::numberList_Change(const EditorControl& control) {
  replaceInput(view_, control,
               Zabezpieczenie_Cyfry(view_.text(control), view_.caret(control), DigitBox::Number));
}

void All_Notes_frm::FName_Change(NoteKind kind) {
  const EditorControl FName = controlOf(ControlArray::FName, kind);
  replaceInput(view_, FName, Zabezpieczenie_plik(view_.text(FName), view_.caret(FName)));
}

void All_Notes_frm::cmdNew(NoteKind kind) {
  if (!leave(kind)) return;
  draft(kind).keep();
  view_.setNotice({});
  showNewNote(kind);
  view_.startNaming(kind);
}

void All_Notes_frm::showNewNote(NoteKind kind) {
  state_.oldName(kind) = state_.deletedName(kind) = kKeepFileName;
  state_.read(kind) = {};
  view_.setText(controlOf(ControlArray::FName, kind), kNewName);
  showEmptyNote(kind);
  draft(kind).begin();
  markLoadedNote(kind);
}

void All_Notes_frm::showEmptyNote(NoteKind kind) {
  showFields(kind, newNoteFields(kind, clock_.now()));
}

void All_Notes_frm::showFields(NoteKind kind, NoteFields fields) {
  const std::vector<std::wstring*> texts = inFileOrder(fields);
  auto text = texts.begin();
  for (const PageField& field : editorPage(kind).fields) reader_.show(field, **text++);
}

void All_Notes_frm::cmdSave(NoteKind kind) {
  view_.setNotice({});
  const bool wasTyped = hasTypedNote(kind);
  const auto& examined = editorPage(kind).examined;
  if (!Zabezpieczenie_Save(examined[0], examined[1], examined[2])) return;
  if (!userAcceptsReplacedCharacters(view_.text(controlOf(ControlArray::Zawartosc, kind)))) return;
  // While a question was open its note can have been deleted, and this is a draft.
  if (wasTyped && !hasTypedNote(kind)) return;
  host_.keepsTyping() ? savePage(kind) : writePage(kind);
}

bool All_Notes_frm::Zabezpieczenie_Save(const EditorControl& control1,
                                        const EditorControl& control2,
                                        const EditorControl& control3) {
  const bool anyEmpty =
      view_.text(control1).empty() || view_.text(control2).empty() || view_.text(control3).empty();
  return !anyEmpty || view_.ask(kEmptyValueTitle, kEmptyValueQuestion);
}

bool All_Notes_frm::has(NoteKind kind) const {
  return std::ranges::find(state_.kinds, kind) != state_.kinds.end();
}

bool All_Notes_frm::userAcceptsReplacedCharacters(std::wstring_view text) const {
  const bool isHeld = host_.keepsTyping() ? isStorable(text, codePage_) : codePage_.holds(text);
  return isHeld || view_.ask(kReplacedTitle, kReplacedQuestion);
}

void All_Notes_frm::cmdDel(NoteKind kind) {
  view_.setNotice({});
  const std::wstring oldName = state_.oldName(kind);
  if (oldName != kKeepFileName && folder_.remove(kind, oldName) == Removal::Removed) {
    view_.setNotice(deletedNotice(oldName));
  }
  leaveFile(kind);
  Update_Files(kind, kind);
}

void All_Notes_frm::cmdRestore() {
  view_.setNotice({});
  std::vector<SafetyCopy> copies = copies_.newestFirst();
  // The user can have chosen another kind since the editor was opened.
  std::erase_if(copies, [this](const SafetyCopy& copy) { return !has(copy.kind); });
  const std::optional<std::size_t> chosen =
      view_.chooseCopy(copies, [this](const SafetyCopy& copy) { return previewOf(copy); });
  if (!chosen) return;
  const SafetyCopy& copy = copies.at(*chosen);
  const std::string bytes = copies_.read(copy);
  if (copy.isDraft && !userAcceptsReplacedCharacters(contentOfDraft(copy.kind, bytes, codePage_))) {
    return;
  }
  restore(copy, bytes);
  Update_Files(copy.kind, copy.kind);
  // Otherwise nothing would be seen of it, and the user would restore it again.
  if (tab_ != copy.kind && leave(tab_)) showTab(copy.kind);
}

void All_Notes_frm::restore(const SafetyCopy& copy, const std::string& bytes) {
  std::string note = copy.isDraft ? noteOfDraft(copy.kind, bytes, codePage_) : bytes;
  if (copy.isDraft && host_.keepsTyping()) note = withReadableText(copy.kind, note, codePage_);
  if (copy.isDraft) requireNoteSize(folder_.file(copy.kind, copy.name), note);
  folder_.add(copy.kind, copy.name, note);
}

NotePreview All_Notes_frm::previewOf(const SafetyCopy& copy) const {
  try {
    return notePreview(copy, copies_.read(copy), codePage_);
  } catch (const FileError& error) {
    return {{}, error.message()};
  }
}

void All_Notes_frm::showNote(NoteKind kind, std::wstring_view name, const PlaceInNote& place) {
  // The user can have chosen to have the kind since the editor was opened.
  if (!has(kind)) return;
  if (tab_ != kind) {
    if (!leave(tab_)) return;
    showTab(kind);
  }
  const auto onPage = [&] { return equalIgnoringCase(state_.oldName(kind), name); };
  if (!onPage()) loadNote(kind, name);
  if (onPage() && !place.text.empty()) showPlace(kind, place);
}

void All_Notes_frm::loadNote(NoteKind kind, std::wstring_view name) {
  updateList(kind);
  if (!isListed(kind, name)) return view_.setNotice(kGoneNotice);
  choose(kind, name);
  File_list_box_Click(kind);
}

void All_Notes_frm::showPlace(NoteKind kind, const PlaceInNote& place) {
  const EditorControl box = controlOf(ControlArray::Zawartosc, kind);
  const std::wstring text = view_.text(box);
  // It can have been typed over, or written anew, since it was found.
  const std::wstring_view rest = std::wstring_view(text).substr(std::min(place.begin, text.size()));
  const std::size_t begin = rest.starts_with(place.text) ? place.begin : text.find(place.text);
  if (begin != std::wstring::npos) view_.showPiece(box, begin, place.text.size());
}

void All_Notes_frm::cmdOK() {
  if (!leave()) return;
  // Before anything that may fail or show other notes.
  keepTyped();
  const UnloadAtEnd unload(*this);
  host_.Update_All_Al();
  host_.showFirstNote();
}

}  // namespace kalvora
