#include "alarms/AlarmNoteReader.h"

#include <algorithm>
#include <utility>

#include "base/DeviceName.h"
#include "base/Errors.h"
#include "base/Text.h"

namespace kalvora {

AlarmNoteReader::AlarmNoteReader(const FileSystem& files, const CodePage& codePage,
                                 std::filesystem::path folder, SharedListing listing,
                                 NoteKinds kinds)
    : files_(files),
      codePage_(codePage),
      folder_(std::move(folder)),
      reader_(files_.readerOf(folder_)),
      listing_(std::move(listing)) {
  for (std::size_t i = 0; i < listing_->size(); ++i) {
    if (const std::optional<NoteKind> kind = kindOfFileName(listing_->name(i), kinds)) {
      File2_[static_cast<std::size_t>(*kind)].push_back(static_cast<std::uint32_t>(i));
    }
  }
}

bool AlarmNoteReader::listsNone() const {
  return std::ranges::all_of(File2_, [](const auto& notes) { return notes.empty(); });
}

bool AlarmNoteReader::folderIsAway() const {
  return listsNone() && !listing_->whole();
}

bool AlarmNoteReader::Inicjuj_czytanie(std::wstring_view fileName) {
  Zakoncz_czytanie();
  try {
    bytes_ = reader_->read(fileName, kLargestNoteSize + 1);
  } catch (const FileError&) {
    // Asked for a device's name, the system may not know the file.
    const bool device = namesDevice(fileName);
    if (device || files_.size(folder_ / fileName)) addUnreadable(fileName);
    if (!device) unread_.emplace_back(fileName);
    return false;
  }
  if (bytes_.size() > kLargestNoteSize) {
    faults_.push_back({std::wstring(fileName), NoteFault::TooLarge});
  } else {
    fields_.emplace(bytes_, codePage_);
  }
  return true;
}

std::wstring AlarmNoteReader::Czytaj_zmienna() {
  return fields_ ? fields_->Czytaj_zmienna() : std::wstring();
}

void AlarmNoteReader::addUnreadable(std::wstring_view fileName) {
  faults_.push_back({std::wstring(fileName), NoteFault::Unreadable});
}

}  // namespace kalvora
