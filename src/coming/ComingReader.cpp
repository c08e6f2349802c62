#include "coming/ComingReader.h"

#include <memory>
#include <optional>

#include "base/Errors.h"
#include "base/Text.h"

namespace kalvora {

namespace {

// What a call may cost, and what a note does: opening its file takes as long as reckoning ten.
constexpr std::size_t kCostOfACall = 4000;
constexpr std::size_t kCostOfANote = 1;
constexpr std::size_t kCostOfReading = 10;

SharedListing listed(const ComingFiles& files) {
  return std::make_shared<const FolderListing>(files.files.list(files.notesFolder, L"*"));
}

}  // namespace

ComingReader::ComingReader(const ComingFiles& files, const ComingHost& host,
                           std::chrono::local_days first, const ComingNotes& before)
    : host_(host),
      before_(before),
      kinds_(host.noteKinds()),
      notes_(files.files, files.codePage, files.notesFolder, listed(files), kinds_),
      listing_(*notes_.listing()),
      found_(notes_.listing(), first) {}

bool ComingReader::readOn() {
  std::size_t cost = 0;
  for (; next_ < listing_.size() && cost < kCostOfACall; ++next_) cost += look(listing_[next_]);
  return next_ == listing_.size();
}

/// Returns what it cost.
std::size_t ComingReader::look(const ListedFile& file) {
  const std::optional<NoteKind> kind = kindOfFileName(file.name, kinds_);
  if (!kind || takeKnown(file)) return kCostOfANote;
  if (const std::optional<NoteTime> time = host_.rememberedTime(*kind, file)) {
    if (const auto rule = dueRuleOf(*time)) found_.add(file.place, *kind, *rule);
    return kCostOfANote;
  }
  read(*kind, file);
  return kCostOfReading;
}

/// Both listings are in the same order, so that one walk through each will do.
bool ComingReader::takeKnown(const ListedFile& file) {
  const std::vector<ComingNote>& known = before_.notes();
  if (before_.first() != found_.first()) return false;
  while (nextKnown_ < known.size() &&
         nameComesBefore(before_.nameOf(known[nextKnown_]), file.name)) {
    ++nextKnown_;
  }
  if (nextKnown_ == known.size()) return false;
  const ListedFile then = before_.fileOf(known[nextKnown_]);
  if (then.name != file.name || !isUnchanged(then.stamp, file.stamp)) return false;
  found_.add(file.place, known[nextKnown_]);
  return true;
}

void ComingReader::read(NoteKind kind, const ListedFile& file) {
  if (notes_.Inicjuj_czytanie(file.name)) {
    try {
      if (const auto rule = readDueRule(kind, notes_)) found_.add(file.place, kind, *rule);
    } catch (const Failure&) {
      notes_.addUnreadable(file.name);
    }
    notes_.Zakoncz_czytanie();
  }
  // A file that is gone by now is no fault.
  for (FaultyNote& fault : notes_.takeFaults()) faulty_.push_back(std::move(fault.fileName));
}

}  // namespace kalvora
