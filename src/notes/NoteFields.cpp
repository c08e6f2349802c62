#include "notes/NoteFields.h"

#include "notes/NoteFieldReader.h"

namespace kalvora {

namespace {

using Texts = std::vector<std::wstring*>;

Texts inOrder(ClockFields& f) {
  return {&f.hour, &f.minute, &f.content};
}

Texts inOrder(WeeklyFields& f) {
  Texts texts = {&f.hour, &f.minute};
  for (std::wstring& weekday : f.weekdays) texts.push_back(&weekday);
  texts.push_back(&f.content);
  return texts;
}

Texts inOrder(MonthlyFields& f) {
  return {&f.day, &f.daysBefore, &f.everyDays, &f.content};
}

Texts inOrder(YearlyFields& f) {
  return {&f.day, &f.month, &f.daysBefore, &f.everyDays, &f.content};
}

Texts inOrder(OnceFields& f) {
  return {&f.year, &f.month, &f.day, &f.hour, &f.minute, &f.content};
}

}  // namespace

NoteFields emptyFields(NoteKind kind) {
  switch (kind) {
    case NoteKind::Weekly:
      return WeeklyFields{};
    case NoteKind::Monthly:
      return MonthlyFields{};
    case NoteKind::Yearly:
      return YearlyFields{};
    case NoteKind::Once:
      return OnceFields{};
    case NoteKind::Daily:
    case NoteKind::Fast:
      break;
  }
  return ClockFields{};
}

std::vector<std::wstring*> inFileOrder(NoteFields& fields) {
  return std::visit([](auto& kindFields) { return inOrder(kindFields); }, fields);
}

NoteFields readFields(NoteKind kind, std::string_view bytes, const CodePage& codePage) {
  NoteFields fields = emptyFields(kind);
  NoteFieldReader reader(bytes, codePage);
  for (std::wstring* field : inFileOrder(fields)) *field = reader.Czytaj_zmienna();
  return fields;
}

std::wstring withoutNuls(std::wstring_view stored) {
  std::wstring text(stored);
  std::erase(text, L'\0');
  return text;
}

std::wstring weekdayFlag(std::wstring_view stored) {
  return stored.size() == 1 ? std::wstring(stored) : L"0";
}

int weekdayState(std::wstring_view stored) {
  const wchar_t flag = weekdayFlag(stored).front();
  return flag >= L'0' && flag <= L'9' ? static_cast<int>(flag - L'0') : 0;
}

}  // namespace kalvora
