#include "find/SearchedNotes.h"

#include "base/Utf8.h"

namespace kalvora {

namespace {

/// Between a folded name and its text. No folded word has one.
constexpr wchar_t kBehindName = L'\n';

}  // namespace

void SearchedNotes::add(std::size_t place, NoteKind kind, std::wstring_view text) {
  std::wstring letters = folded(titleOf(listing_->name(place)));
  letters += kBehindName;
  letters += folded(text);
  append(place, kind, toUtf8(text), toUtf8(letters));
}

void SearchedNotes::add(std::size_t place, const SearchedNotes& others, const SearchedNote& note) {
  append(place, note.kind, others.utf8Of(note), others.foldedOf(note));
}

void SearchedNotes::append(std::size_t place, NoteKind kind, std::string_view text,
                           std::string_view foldedText) {
  notes_.push_back({static_cast<std::uint32_t>(place),
                    kind,
                    {texts_.size(), text.size()},
                    {folded_.size(), foldedText.size()}});
  texts_ += text;
  folded_ += foldedText;
}

std::wstring SearchedNotes::textOf(const SearchedNote& note) const {
  return fromUtf8(utf8Of(note));
}

bool SearchedNotes::have(const SearchWords& words, const SearchedNote& note) const {
  return words.occurIn(foldedOf(note));
}

}  // namespace kalvora
