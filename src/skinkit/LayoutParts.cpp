#include "skinkit/LayoutParts.h"

#include "skin/WindowPicture.h"

namespace kalvora {

namespace {

LayoutPart::Shown shownWhen(ButtonId id) {
  using Shown = LayoutPart::Shown;
  if (isFaceButton(id)) return Shown::WithReminder;
  return isMainButton(id) ? Shown::WithoutReminder : Shown::Always;
}

}  // namespace

std::wstring sectionName(ButtonId id) {
  constexpr std::array<std::wstring_view, kButtonCount> kNames = {
      L"[Fast Delete]", L"[Rool Down/Up]", L"[Minimize]", L"[New]",    L"[Save]",
      L"[Delete]",      L"[Left]",         L"[Right]",    L"[Snooze]", L"[Done]"};
  return std::wstring(kNames[static_cast<std::size_t>(id)]);
}

std::wstring sectionName(RowId id) {
  constexpr std::array<std::wstring_view, kRowCount> kNames = {L"Scrool", L"File Date/Time",
                                                               L"Current Date", L"x of n"};
  return L"[Graphic Text] " + std::wstring(kNames[static_cast<std::size_t>(id)]);
}

std::wstring sectionName(FieldId id) {
  constexpr std::array<std::wstring_view, kFieldCount> kNames = {L"[Note Title]", L"[Note Text]",
                                                                 L"[Note Alarm]", L"[Note AmPm]"};
  return std::wstring(kNames[static_cast<std::size_t>(id)]);
}

std::vector<LayoutPart> layoutParts(const SkinnedWindow& window) {
  using Kind = LayoutPart::Kind;
  const SkinDescription& description = window.description();
  std::vector<LayoutPart> parts;
  for (const ButtonId id : kAllButtons) {
    if (isFaceButton(id) && window.buttonRect(id).empty()) continue;
    const ButtonPlace& place = description.button(id);
    parts.push_back({Kind::Button,
                     sectionName(id),
                     {place.x, place.y, place.width, place.height},
                     shownWhen(id) == LayoutPart::Shown::Always,
                     shownWhen(id)});
  }
  for (const RowId id : kAllRows) {
    const RowPlace& place = description.row(id);
    parts.push_back(
        {Kind::Row,
         sectionName(id),
         {place.x, place.y, window.rowLength(id) * description.cellWidth, description.cellHeight},
         id == RowId::lit,
         LayoutPart::Shown::Always});
  }
  for (const FieldId id : kAllFields) {
    parts.push_back({Kind::Field, sectionName(id), fieldRect(description.field(id)), false,
                     LayoutPart::Shown::Always});
  }
  return parts;
}

int pixelsInSight(const Rect& area, const std::optional<RowSpans>& outline, Size window) {
  const Rect inside = intersection(area, {0, 0, window.width, window.height});
  if (!outline) return inside.empty() ? 0 : inside.width * inside.height;
  int seen = 0;
  for (const RowSpan& span : *outline) {
    const Rect common = intersection(inside, {span.left, span.y, span.right - span.left, 1});
    if (!common.empty()) seen += common.width;
  }
  return seen;
}

}  // namespace kalvora
