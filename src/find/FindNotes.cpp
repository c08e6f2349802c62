#include "find/FindNotes.h"

#include <algorithm>
#include <utility>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "find/Excerpt.h"
#include "notes/EditorControls.h"

namespace kalvora {

namespace {

// Milliseconds: between two slices of reading, and two looks at what changed.
constexpr int kReadingInterval = 10;
constexpr int kLookingInterval = 1000;
// A folder that is away, as on a drive that sleeps, is not asked for each second.
constexpr int kLooksUntilAskedAgain = 60;

constexpr std::wstring_view kSection = L"Find";

std::wstring countNotice(std::size_t count) {
  if (count == 0) return L"Nothing is found.";
  if (count == 1) return L"1 note.";
  return numberToText(static_cast<int>(count)) + L" notes.";
}

}  // namespace

FindNotes::FindNotes(const FindPorts& ports)
    : files_(ports.files),
      memory_(ports.settings, kSection),
      view_(ports.view),
      host_(ports.host) {}

void FindNotes::Form_Load() {
  open_ = true;
  hasRead_ = false;
  designed_ = view_.size();
  const Size size = memory_.size(designed_);
  if (size != designed_) view_.setSize(size);
  words_ = SearchWords(view_.words());
  refresh();
}

void FindNotes::activated() {
  // A window that is just opened reads already.
  if (open_ && !reader_) refresh();
}

void FindNotes::refresh() {
  changes_ = host_.noteChanges();
  kinds_ = host_.noteKinds();
  reader_.emplace(files_, host_.noteKinds(), notes_);
  looksAway_ = reader_->folderIsAway() ? 1 : 0;
  if (looksAway_ == 0) return readOn();
  // What is known of it stays.
  reader_.reset();
  view_.setTimer(kLookingInterval);
  tell();
}

void FindNotes::readOn() {
  if (reader_->readOn()) return finishReading();
  view_.setTimer(kReadingInterval);
  if (!isFirstReading()) return tell();
  searchOn();
  showRows(view_.selectedRow());
}

void FindNotes::finishReading() {
  const std::optional<std::wstring> selected = selectedName();
  faulty_ = reader_->faulty();
  // Not into its place at once: the reader looks at what is there.
  SearchedNotes read = reader_->take();
  reader_.reset();
  notes_ = std::move(read);
  hasRead_ = true;
  view_.setTimer(kLookingInterval);
  found_.clear();
  searched_ = 0;
  searchOn();
  showRows(selected ? rowOf(*selected) : std::nullopt);
}

void FindNotes::tick() {
  if (!open_) return;
  if (reader_) return readOn();
  const bool folderMayBeBack = looksAway_ > 0 && ++looksAway_ > kLooksUntilAskedAgain;
  const bool otherKinds = !std::ranges::equal(kinds_, host_.noteKinds());
  if (folderMayBeBack || otherKinds || changes_ != host_.noteChanges()) refresh();
}

void FindNotes::search() {
  if (!open_) return;
  SearchWords words(view_.words());
  const bool fewer = words.narrow(words_);
  words_ = std::move(words);
  if (fewer) {
    std::erase_if(found_, [this](std::uint32_t note) {
      return !notes().have(words_, notes().notes()[note]);
    });
  } else {
    found_.clear();
    searched_ = 0;
    searchOn();
  }
  showRows({});
  if (!found_.empty()) view_.scrollTo(0);
}

/// Through the notes that were not looked through yet.
void FindNotes::searchOn() {
  const std::vector<SearchedNote>& all = notes().notes();
  for (; searched_ < all.size(); ++searched_) {
    if (notes().have(words_, all[searched_])) {
      found_.push_back(static_cast<std::uint32_t>(searched_));
    }
  }
}

std::optional<std::wstring> FindNotes::selectedName() const {
  const std::optional<std::size_t> row = view_.selectedRow();
  if (!row || *row >= found_.size()) return std::nullopt;
  return notes().nameOf(noteAt(*row));
}

std::optional<std::size_t> FindNotes::rowOf(std::wstring_view name) const {
  const auto row = std::ranges::lower_bound(
      found_, name, nameComesBefore,
      [this](std::uint32_t note) { return notes().nameOf(notes().notes()[note]); });
  if (row == found_.end() || notes().nameOf(notes().notes()[*row]) != name) return std::nullopt;
  return static_cast<std::size_t>(row - found_.begin());
}

void FindNotes::showRows(const std::optional<std::size_t>& selected) {
  view_.showRows(found_.size(), selected && *selected < found_.size() ? selected : std::nullopt);
  tell();
}

std::wstring FindNotes::text(std::size_t row, FindColumn column) const {
  if (row >= found_.size()) return {};
  const SearchedNote& note = noteAt(row);
  switch (column) {
    case FindColumn::Name:
      return std::wstring(titleOf(notes().nameOf(note)));
    case FindColumn::Kind:
      return std::wstring(editorPage(note.kind).caption);
    default: {
      const std::wstring text = notes().textOf(note);
      return excerptOf(text, words_.placeIn(text));
    }
  }
}

void FindNotes::openRow(std::size_t row) {
  if (row >= found_.size()) return;
  const SearchedNote& note = noteAt(row);
  const std::wstring name = notes().nameOf(note);
  const std::wstring text = notes().textOf(note);
  PlaceInNote place;
  if (const std::optional<TextPiece> piece = words_.placeIn(text)) {
    place = {piece->begin, text.substr(piece->begin, piece->length)};
  }
  host_.openNoteAt(note.kind, titleOf(name), place);
}

void FindNotes::tell() {
  view_.setNotice(notice());
}

std::wstring FindNotes::notice() const {
  if (reader_) return readingNotice(*reader_);
  if (looksAway_ > 0) return std::wstring(kFolderAwayNotice);
  const std::wstring count = countNotice(found_.size());
  return faulty_.empty() ? count : count + L" " + faultNotice(faulty_);
}

void FindNotes::unload() noexcept {
  if (!open_) return;
  open_ = false;
  try {
    memory_.storeSize(view_.size(), designed_);
  } catch (const Failure&) {
    // No reason for a message: the window has another size the next time.
  }
  reader_.reset();
  // What an empty text is assigned to keeps its room.
  SearchedNotes none;
  std::swap(notes_, none);
  std::vector<std::uint32_t>().swap(found_);
  searched_ = 0;
  faulty_.clear();
  view_.unload();
}

}  // namespace kalvora
