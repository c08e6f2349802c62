#include "notes/SafetyCopyName.h"

#include <algorithm>
#include <array>
#include <cwchar>

#include "base/Numbers.h"
#include "base/Text.h"

namespace kalvora {

namespace {

/// Between the note's name and the extension; 0 stands for a digit.
constexpr std::wstring_view kMomentForm = L" 0000-00-00 00-00-00";
/// Between the moment and the number of a draft.
constexpr std::wstring_view kDraftMark = L" draft";
constexpr std::size_t kLongestNumber = 6;     // " (200)"
constexpr std::size_t kLongestExtension = 4;  // ".tx1"
static_assert(kLongestCopyEnding ==
              kMomentForm.size() + kDraftMark.size() + kLongestNumber + kLongestExtension);

bool isDigit(wchar_t c) {
  return c >= L'0' && c <= L'9';
}

int numberAt(std::wstring_view text, std::size_t begin, std::size_t length) {
  int number = 0;
  for (const wchar_t digit : text.substr(begin, length)) number = number * 10 + (digit - L'0');
  return number;
}

bool isMoment(std::wstring_view text) {
  return std::ranges::equal(text, kMomentForm, [](wchar_t c, wchar_t form) {
    return form == L'0' ? isDigit(c) : c == form;
  });
}

LocalTime momentOf(std::wstring_view text) {
  LocalTime time;
  time.year = numberAt(text, 1, 4);
  time.month = numberAt(text, 6, 2);
  time.day = numberAt(text, 9, 2);
  time.hour = numberAt(text, 12, 2);
  time.minute = numberAt(text, 15, 2);
  time.second = numberAt(text, 18, 2);
  return time;
}

std::wstring numberText(int number) {
  return number == 1 ? L"" : L" (" + numberToText(number) + L")";
}

/// Takes " (7)" from the end of a text; 1 where there is none.
int takeNumber(std::wstring_view& text) {
  constexpr std::size_t kMostDigits = 3;
  const std::size_t open = text.rfind(L" (");
  if (open == std::wstring_view::npos || !text.ends_with(L')')) return 1;
  const std::wstring_view digits = text.substr(open + 2, text.size() - open - 3);
  if (digits.empty() || digits.size() > kMostDigits || !std::ranges::all_of(digits, isDigit)) {
    return 1;
  }
  text = text.substr(0, open);
  return numberAt(digits, 0, digits.size());
}

/// Takes the mark of a draft from the end of a text. False where there is none.
bool takeDraftMark(std::wstring_view& text) {
  if (!text.ends_with(kDraftMark)) return false;
  text.remove_suffix(kDraftMark.size());
  return true;
}

std::wstring ageText(const SafetyCopy& copy) {
  std::array<wchar_t, 16> number{};
  std::swprintf(number.data(), number.size(), L"%03d", copy.number);
  return momentText(copy.when) + number.data() + copy.fileName;
}
constexpr std::size_t kAgeLength = kMomentForm.size() + 3;

}  // namespace

std::wstring momentText(const LocalTime& time) {
  std::array<wchar_t, 64> text{};
  std::swprintf(text.data(), text.size(), L" %04d-%02d-%02d %02d-%02d-%02d", time.year, time.month,
                time.day, time.hour, time.minute, time.second);
  return text.data();
}

std::optional<SafetyCopy> copyOf(const std::wstring& fileName) {
  const auto kind = kindOfFileName(fileName, kNoteKinds);
  if (!kind) return std::nullopt;
  std::wstring_view rest = titleOf(fileName);
  const int number = takeNumber(rest);
  const bool isDraft = takeDraftMark(rest);
  if (rest.size() < kMomentForm.size()) return std::nullopt;
  const std::size_t length = rest.size() - kMomentForm.size();
  const std::wstring_view moment = rest.substr(length);
  if (!isMoment(moment)) return std::nullopt;
  return SafetyCopy{fileName, std::wstring(rest.substr(0, length)), *kind, momentOf(moment), number,
                    isDraft};
}

CopyNameParts copyNamePartsOf(const std::filesystem::path& file, std::size_t longestName,
                              NoteKinds kinds) {
  const std::wstring fileName = file.filename().wstring();
  const std::size_t length =
      kindOfFileName(fileName, kinds) ? titleOf(fileName).size() : file.stem().wstring().size();
  return {fileName.substr(0, std::min(length, longestName)), fileName.substr(length)};
}

std::wstring copyFileName(const CopyNameParts& parts, const LocalTime& when, CopyKind kind,
                          int number) {
  std::wstring fileName = parts.name + momentText(when);
  if (kind == CopyKind::Draft) fileName += kDraftMark;
  return fileName + numberText(number) + parts.extension;
}

std::vector<SafetyCopy> newestCopiesFirst(const std::vector<std::wstring>& fileNames,
                                          NoteKinds kinds) {
  std::vector<std::wstring> byAge;
  for (const std::wstring& fileName : fileNames) {
    if (!kindOfFileName(fileName, kinds)) continue;
    if (const auto copy = copyOf(fileName)) byAge.push_back(ageText(*copy));
  }
  std::ranges::sort(byAge, nameComesBefore);
  std::vector<SafetyCopy> copies;
  for (; !byAge.empty(); byAge.pop_back()) {
    copies.push_back(*copyOf(byAge.back().substr(kAgeLength)));
  }
  return copies;
}

}  // namespace kalvora
