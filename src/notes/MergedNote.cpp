// What two windows, or two programs, made of one note.

#include <algorithm>
#include <vector>

#include "notes/LeftNote.h"

namespace kalvora {

namespace {

/// How many fields, in the order of a file and without the text, are one thing to the user.
std::vector<std::size_t> partsOf(NoteKind kind) {
  switch (kind) {
    case NoteKind::Weekly:
      return {2, 1, 1, 1, 1, 1, 1, 1};
    case NoteKind::Monthly:
      return {1, 1, 1};
    case NoteKind::Yearly:
      return {2, 1, 1};
    case NoteKind::Once:
      return {3, 2};
    case NoteKind::Daily:
    case NoteKind::Fast:
      break;
  }
  return {2};
}

/// The same fields of notes of one kind.
class Part {
 public:
  Part(std::size_t first, std::size_t count) : first_(first), count_(count) {}

  bool isSame(const NoteFields& a, const NoteFields& b) const {
    return std::ranges::equal(of(a), of(b));
  }
  void copy(const NoteFields& from, NoteFields& to) const {
    const std::vector<std::wstring> texts = of(from);
    const std::vector<std::wstring*> places = inFileOrder(to);
    for (std::size_t i = 0; i < count_; ++i) *places[first_ + i] = texts[i];
  }

 private:
  std::vector<std::wstring> of(NoteFields fields) const {
    const std::vector<std::wstring*> places = inFileOrder(fields);
    std::vector<std::wstring> texts;
    for (std::size_t i = 0; i < count_; ++i) texts.push_back(*places[first_ + i]);
    return texts;
  }

  std::size_t first_;
  std::size_t count_;
};

}  // namespace

TypedNote mergedWith(const LeftNote& left, const NoteAsRead& now) {
  TypedNote merged = left.typed;
  // The wish to keep what is typed can be younger than what was shown at first.
  const bool isBegunKnown = left.begun && left.begun->kind == left.typed.kind;
  const NoteFields& begun = isBegunKnown ? left.begun->fields : left.read.fields;
  const auto take = [&](const Part& part) {
    const NoteFields& typed = left.typed.fields;
    const bool isTyped = !part.isSame(typed, begun) && !part.isSame(typed, left.read.fields);
    const bool isKept =
        left.untyped == Untyped::AsShown && part.isSame(now.fields, left.read.fields);
    if (isTyped || isKept) return false;
    part.copy(now.fields, merged.fields);
    return true;
  };
  std::size_t first = 0;
  for (const std::size_t count : partsOf(left.typed.kind)) {
    take({first, count});
    first += count;
  }
  if (take({first, 1})) merged.storedContent = now.content;
  return merged;
}

}  // namespace kalvora
