#include "notes/NotePreview.h"

#include <array>
#include <variant>
#include <vector>

#include "base/InputFilters.h"
#include "base/Numbers.h"
#include "notes/EditorControls.h"
#include "notes/NoteDate.h"
#include "notes/NoteFields.h"

namespace kalvora {

namespace {

constexpr std::array<std::wstring_view, 7> kWeekdays = {
    L"Sunday", L"Monday", L"Tuesday", L"Wednesday", L"Thursday", L"Friday", L"Saturday"};

std::wstring timeText(const std::wstring& hour, const std::wstring& minute) {
  if (hour.empty() && minute.empty()) return {};
  return L"at " + hour + L":" + (minute.size() == 1 ? L"0" : L"") + minute;
}

/// As the editor's list has it; nothing for a month that it does not have.
std::wstring monthText(const std::wstring& month) {
  const std::vector<std::wstring> months = itemsOf({ControlArray::MonthY, 0});
  for (std::size_t i = 0; i < months.size(); ++i) {
    if (month == numberToText(static_cast<int>(i))) return months[i];
  }
  return {};
}

/// What a reminder's note is made of, one after the other.
using Parts = std::vector<std::wstring>;

void addAdvance(Parts& parts, const std::wstring& daysBefore, const std::wstring& everyDays) {
  if (!daysBefore.empty()) parts.push_back(daysBefore + L" day(s) before");
  if (!everyDays.empty()) parts.push_back(L"every " + everyDays + L" day(s)");
}

Parts partsOf(const ClockFields& fields) {
  return {timeText(fields.hour, fields.minute)};
}

Parts partsOf(const WeeklyFields& fields) {
  Parts parts = {timeText(fields.hour, fields.minute)};
  for (std::size_t i = 0; i < kWeekdays.size(); ++i) {
    if (weekdayState(fields.weekdays[i]) == 1) parts.emplace_back(kWeekdays[i]);
  }
  return parts;
}

Parts partsOf(const MonthlyFields& fields) {
  Parts parts;
  if (!fields.day.empty()) parts.push_back(L"day " + fields.day);
  addAdvance(parts, fields.daysBefore, fields.everyDays);
  return parts;
}

Parts partsOf(const OnceFields& fields) {
  const auto date = noteDate(fields.year, fields.month, fields.day);
  if (!date) return {timeText(fields.hour, fields.minute)};
  const auto number = [](unsigned part) { return numberToText(static_cast<int>(part)); };
  const unsigned month = static_cast<unsigned>(date->month());
  return {number(static_cast<unsigned>(date->day())) + L" " + monthText(number(month - 1)) + L" " +
              numberToText(static_cast<int>(date->year())),
          timeText(fields.hour, fields.minute)};
}

Parts partsOf(const YearlyFields& fields) {
  Parts parts = {fields.day.empty() ? monthText(fields.month)
                                    : fields.day + L" " + monthText(fields.month)};
  addAdvance(parts, fields.daysBefore, fields.everyDays);
  return parts;
}

std::wstring joined(const Parts& parts) {
  std::wstring text;
  for (const std::wstring& part : parts) {
    if (!text.empty() && !part.empty()) text += L", ";
    text += part;
  }
  return text;
}

}  // namespace

NotePreview notePreview(const SafetyCopy& copy, std::string_view bytes, const CodePage& codePage) {
  NoteFields fields = readFields(copy.kind, bytes, codePage);
  for (std::wstring* field : inFileOrder(fields)) *field = withoutNuls(*field);
  const std::wstring text = copy.isDraft ? contentOfDraft(copy.kind, bytes, codePage)
                                         : contentOf(copy.kind, bytes, codePage);
  return {std::visit([](const auto& kindFields) { return joined(partsOf(kindFields)); }, fields),
          fullLineEnds(text, 0).text};
}

}  // namespace kalvora
