#include "alarms/SlicedNoteReader.h"

#include <memory>
#include <optional>

#include "base/Errors.h"
#include "base/Numbers.h"

namespace kalvora {

namespace {

// What a call may cost, and what a note does: opening its file takes as long as reckoning ten.
constexpr std::size_t kCostOfACall = 4000;
constexpr std::size_t kCostOfANote = 1;
constexpr std::size_t kCostOfReading = 10;

SharedListing listed(const NoteFiles& files) {
  return std::make_shared<const FolderListing>(files.files.list(files.notesFolder, L"*"));
}

}  // namespace

SlicedNoteReader::SlicedNoteReader(const NoteFiles& files, NoteKinds kinds)
    : kinds_(kinds),
      notes_(files.files, files.codePage, files.notesFolder, listed(files), kinds),
      listing_(*notes_.listing()) {}

bool SlicedNoteReader::readOn() {
  std::size_t cost = 0;
  for (; next_ < listing_.size() && cost < kCostOfACall; ++next_) cost += look(listing_[next_]);
  return next_ == listing_.size();
}

/// Returns what it cost.
std::size_t SlicedNoteReader::look(const ListedFile& file) {
  const std::optional<NoteKind> kind = kindOfFileName(file.name, kinds_);
  if (!kind || takeKnown(*kind, file)) return kCostOfANote;
  read(*kind, file);
  return kCostOfReading;
}

void SlicedNoteReader::read(NoteKind kind, const ListedFile& file) {
  if (notes_.Inicjuj_czytanie(file.name)) {
    try {
      take(kind, file, notes_);
    } catch (const Failure&) {
      notes_.addUnreadable(file.name);
    }
    notes_.Zakoncz_czytanie();
  }
  // A file that is gone by now is no fault.
  for (FaultyNote& fault : notes_.takeFaults()) faulty_.push_back(std::move(fault.fileName));
}

std::wstring readingNotice(const SlicedNoteReader& reader) {
  return L"Reading notes\x2026 " + numberToText(static_cast<int>(reader.done())) + L" of " +
         numberToText(static_cast<int>(reader.total()));
}

std::wstring faultNotice(const std::vector<std::wstring>& faulty) {
  if (faulty.empty()) return {};
  if (faulty.size() > 1) {
    return numberToText(static_cast<int>(faulty.size())) +
           L" notes cannot be read and are left out.";
  }
  return L"\x201C" + std::wstring(titleOf(faulty.front())) +
         L"\x201D cannot be read and is left out.";
}

}  // namespace kalvora
