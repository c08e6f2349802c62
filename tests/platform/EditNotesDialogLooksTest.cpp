// What the note editor looks like to Windows.

#include <cwctype>
#include <map>
#include <set>

#include "platform/NameForReaders.h"
#include "platform/NoteEditorWindow.h"
#include "win32/platform/ComLibrary.h"

namespace kalvora {
namespace {

using enum ControlArray;

class NoteEditorLooks : public NoteEditorWindow {
 protected:
  Names tabCaptions() const;
};

std::wstring withoutAccessKey(std::wstring caption) {
  std::erase(caption, L'&');
  return caption;
}

Names NoteEditorLooks::tabCaptions() const {
  const HWND tabs = GetDlgItem(dialog_.window(), IDC_TBSOPTIONS);
  Names captions;
  for (int i = 0; i < SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0); ++i) {
    wchar_t caption[32] = L"";
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption;
    item.cchTextMax = 32;
    SendMessageW(tabs, TCM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
    captions.emplace_back(caption);
  }
  return captions;
}

TEST_F(NoteEditorLooks, hasItsTabsAndCaptions) {
  open();
  EXPECT_EQ(textOf(dialog_.window()), L"Edit Notes");
  EXPECT_EQ(tabCaptions(), (Names{L"Daily", L"Weakly", L"Monthly", L"Yearly", L"Fast", L"Once"}));
  EXPECT_EQ(withoutAccessKey(textOf(GetDlgItem(dialog_.window(), IDC_CMDOK))), L"Close");
  EXPECT_EQ(withoutAccessKey(textOf(GetDlgItem(dialog_.window(), IDC_CMDRESTORE))),
            L"Restore\u2026");
  for (const NoteKind kind : kNoteKinds) {
    EXPECT_EQ(withoutAccessKey(textOf(control(controlOf(cmdNew, kind)))), L"New");
    EXPECT_EQ(withoutAccessKey(textOf(control(controlOf(cmdSave, kind)))), L"Save");
    EXPECT_EQ(withoutAccessKey(textOf(control(controlOf(cmdDel, kind)))), L"Delete");
  }
  const Names weekdays = {L"Sunday",   L"Monday", L"Tuesday", L"Wednesday",
                          L"Thursday", L"Friday", L"Saturday"};
  for (int day = 0; day < 7; ++day) {
    EXPECT_EQ(withoutAccessKey(textOf(control({Check1, day}))),
              weekdays[static_cast<std::size_t>(day)]);
  }
}

TEST_F(NoteEditorLooks, hasATabForEachKindThatTheUserHasWhenItIsOpened) {
  open();
  host_.kinds = knownKinds({});
  EXPECT_EQ(tabCaptions().size(), 6U);
  dialog_.unload();
  open();
  EXPECT_EQ(tabCaptions(), (Names{L"Daily", L"Weakly", L"Monthly", L"Yearly", L"Fast"}));
  EXPECT_EQ(findControl(dialog_.window(), idOf(controlOf(FName, NoteKind::Once))), nullptr);
  EXPECT_EQ(reporter_.messages, Names{});
}

TEST_F(NoteEditorLooks, hasTheLabelsOfEachPageInTheirOrder) {
  open();
  const std::map<NoteKind, Names> expected = {
      {NoteKind::Daily, {L"Notes:", L"Name:", L"Time:", L":", L"Text:"}},
      {NoteKind::Weekly, {L"Notes:", L"Name:", L"Time:", L":", L"Text:"}},
      {NoteKind::Monthly,
       {L"Notes:", L"Name:", L"Day:", L"Remind me", L"day(s) before", L"every", L"day(s)",
        L"Text:"}},
      {NoteKind::Yearly,
       {L"Notes:", L"Name:", L"Day:", L"Month:", L"Remind me", L"day(s) before", L"every",
        L"day(s)", L"Text:"}},
      {NoteKind::Fast, {L"Notes:", L"Name:", L"Time:", L":", L"Text:"}},
      {NoteKind::Once, {L"Notes:", L"Name:", L"Date:", L"Time:", L":", L"Text:"}},
  };
  for (const NoteKind kind : kNoteKinds) {
    Names labels;
    for (HWND label = nullptr;
         (label = FindWindowExW(page(kind), label, L"Static", nullptr)) != nullptr;) {
      labels.push_back(withoutAccessKey(textOf(label)));
    }
    EXPECT_EQ(labels, expected.at(kind));
  }
}

TEST_F(NoteEditorLooks, theFieldForWordsHasANameForScreenReaders) {
  const ComApartment com;
  open();
  EXPECT_EQ(nameForReaders(GetDlgItem(dialog_.window(), IDC_FINDWORDS)), L"Find:");
}

TEST_F(NoteEditorLooks, givesEachAccessKeyOnceAPage) {
  open();
  for (const NoteKind kind : kNoteKinds) {
    std::set<wchar_t> keys = {L'C', L'R'};
    for (HWND child = GetWindow(page(kind), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
      wchar_t type[32] = L"";
      GetClassNameW(child, type, 32);
      if (lstrcmpiW(type, L"Static") != 0 && lstrcmpiW(type, L"Button") != 0) continue;
      const std::wstring caption = textOf(child);
      const std::size_t mark = caption.find(L'&');
      if (mark == std::wstring::npos) continue;
      const auto key = static_cast<wchar_t>(std::towupper(caption.at(mark + 1)));
      EXPECT_TRUE(keys.insert(key).second) << static_cast<int>(kind) << static_cast<char>(key);
    }
    EXPECT_GE(keys.size(), 8U);
  }
}

TEST_F(NoteEditorLooks, standsInTheMiddleOfTheScreen) {
  open();
  RECT work{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  RECT place{};
  GetWindowRect(dialog_.window(), &place);
  EXPECT_NEAR(place.left + place.right, work.left + work.right, 2);
  EXPECT_NEAR(place.top + place.bottom, work.top + work.bottom, 2);
}

TEST_F(NoteEditorLooks, growsItsListAndItsTextAndNeverShrinksBelowItsDesign) {
  open();
  const auto sizeOf = [](HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return POINT{place.right - place.left, place.bottom - place.top};
  };
  const POINT whole = sizeOf(dialog_.window());
  const HWND list = control(controlOf(File_list_box, NoteKind::Daily));
  const HWND text = control(controlOf(Zawartosc, NoteKind::Daily));
  const POINT listBefore = sizeOf(list);
  const POINT textBefore = sizeOf(text);
  SetWindowPos(dialog_.window(), nullptr, 0, 0, whole.x + 80, whole.y + 60,
               SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(sizeOf(list).y, listBefore.y + 60);
  EXPECT_EQ(sizeOf(list).x, listBefore.x);
  EXPECT_EQ(sizeOf(text).y, textBefore.y + 60);
  EXPECT_EQ(sizeOf(text).x, textBefore.x + 80);
  SetWindowPos(dialog_.window(), nullptr, 0, 0, 50, 50, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(sizeOf(dialog_.window()).x, whole.x);
  EXPECT_EQ(sizeOf(dialog_.window()).y, whole.y);
  EXPECT_EQ(sizeOf(text).y, textBefore.y);
}

TEST_F(NoteEditorLooks, endsItsMonthAndItsDateWhereTheNameEndsAtAnySize) {
  open();
  const auto rightEdge = [this](const EditorControl& box) {
    RECT place{};
    GetWindowRect(control(box), &place);
    return place.right;
  };
  for (const int more : {0, 80, 300}) {
    SetWindowPos(dialog_.window(), nullptr, 0, 0, 800 + more, 600, SWP_NOMOVE | SWP_NOZORDER);
    // Within what dialog units are rounded by.
    EXPECT_NEAR(rightEdge({MonthY, 0}), rightEdge(controlOf(FName, NoteKind::Yearly)), 1) << more;
    EXPECT_NEAR(rightEdge({OnceDate, 0}), rightEdge(controlOf(FName, NoteKind::Once)), 1) << more;
  }
}

TEST_F(NoteEditorLooks, disablesTheHalfOfTheDayIn24HourTime) {
  host_.format = HourFormat::Hours24;
  open();
  for (int i = 0; i < 4; ++i) EXPECT_FALSE(IsWindowEnabled(control({AmPmCombo, i})));
}

}  // namespace
}  // namespace kalvora
