#include "notes/NoteKind.h"

#include <algorithm>

#include "base/Text.h"

namespace kalvora {

namespace {

constexpr std::size_t kExtensionLength = 4;

constexpr std::array<std::wstring_view, kNoteKinds.size()> kExtensions = {
    L".tx1", L".tx2", L".tx3", L".tx4", L".txt", L".tx5"};

}  // namespace

NoteKinds knownKinds(const Comfort& comfort) {
  const NoteKinds all = kNoteKinds;
  return comfort.Once_notes ? all : all.first(static_cast<std::size_t>(NoteKind::Once));
}

std::wstring_view extensionOf(NoteKind kind) {
  return kExtensions[static_cast<std::size_t>(kind)];
}

std::optional<NoteKind> kindOfFileName(std::wstring_view fileName, NoteKinds kinds) {
  const std::wstring_view extension = fileName.substr(titleOf(fileName).size());
  const auto found = std::ranges::find_if(
      kinds, [&](NoteKind kind) { return equalIgnoringCase(extension, extensionOf(kind)); });
  if (found == kinds.end()) return std::nullopt;
  return *found;
}

std::wstring_view titleOf(std::wstring_view fileName) {
  return fileName.substr(0, fileName.size() - std::min(fileName.size(), kExtensionLength));
}

bool hasClockTime(NoteKind kind) {
  return kind != NoteKind::Monthly && kind != NoteKind::Yearly;
}

}  // namespace kalvora
