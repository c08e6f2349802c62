#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "notes/All_Notes_frmView.h"

namespace kalvora {

/// A note editor that remembers what it was told to show, and can be filled in.
class FakeAll_Notes_frmView : public All_Notes_frmView {
 public:
  struct Control {
    std::wstring text;
    std::size_t caret = 0;
    int selection = -1;
    std::vector<std::wstring> items;
    bool ticked = false;
    std::chrono::year_month_day date{};
    bool enabled = true;
    friend bool operator==(const Control&, const Control&) = default;
  };
  struct Message {
    std::wstring title;
    std::wstring text;
    friend bool operator==(const Message&, const Message&) = default;
  };
  struct Order {
    bool operator()(const EditorControl& a, const EditorControl& b) const {
      return std::pair(a.array, a.index) < std::pair(b.array, b.index);
    }
  };
  using Controls = std::map<EditorControl, Control, Order>;

  void createPages(NoteKinds kinds) override { pages = kinds; }
  std::wstring text(const EditorControl& control) const override { return at(control).text; }
  void setText(const EditorControl& control, std::wstring_view text) override {
    at(control).text = text;
    at(control).caret = 0;
    ++textsSet;
  }
  std::size_t caret(const EditorControl& control) const override { return at(control).caret; }
  void setCaret(const EditorControl& control, std::size_t caret) override {
    at(control).caret = caret;
  }
  int selection(const EditorControl& control) const override { return at(control).selection; }
  void select(const EditorControl& control, int position) override {
    at(control).selection = position;
  }
  void setItems(const EditorControl& control, const std::vector<std::wstring>& items) override {
    at(control).items = items;
    at(control).selection = -1;
  }
  std::chrono::year_month_day date(const EditorControl& control) const override {
    return at(control).date;
  }
  void setDate(const EditorControl& control, std::chrono::year_month_day date) override {
    at(control).date = date;
  }
  bool ticked(const EditorControl& control) const override { return at(control).ticked; }
  void setTicked(const EditorControl& control, bool ticked) override {
    at(control).ticked = ticked;
  }
  void setEnabled(const EditorControl& control, bool enabled) override {
    at(control).enabled = enabled;
  }
  void centre() override { ++centred; }
  void showPage(NoteKind kind) override { page = kind; }
  void startNaming(NoteKind kind) override { naming = kind; }
  void showPiece(const EditorControl& control, std::size_t begin, std::size_t length) override {
    piece = at(control).text.substr(begin, length);
    pieceBegin = begin;
  }
  void startFinding() override { ++findings; }
  void setNotice(std::wstring_view text) override { notice = text; }
  void unload() noexcept override { ++unloads; }
  void startDraftTimer(int interval) override { draftTimer = interval; }
  void stopDraftTimer() override { draftTimer.reset(); }
  std::optional<std::size_t> chooseCopy(const std::vector<SafetyCopy>& copies,
                                        const CopyPreview& preview) override {
    offered = copies;
    previews.clear();
    for (const SafetyCopy& copy : copies) previews.push_back(preview(copy));
    return onChoose ? onChoose(copies) : std::nullopt;
  }
  void showError(std::wstring_view title, std::wstring_view text) override {
    errors.push_back({std::wstring(title), std::wstring(text)});
  }
  bool ask(std::wstring_view title, std::wstring_view text) override {
    questions.push_back({std::wstring(title), std::wstring(text)});
    if (onAsk) onAsk();
    return answer;
  }

  Control& at(const EditorControl& control) { return controls[control]; }
  const Control& at(const EditorControl& control) const {
    static const Control kUntouched;
    const auto found = controls.find(control);
    return found == controls.end() ? kUntouched : found->second;
  }

  Controls controls;
  NoteKinds pages;
  NoteKind page = NoteKind::Fast;
  std::optional<NoteKind> naming;
  std::optional<std::wstring> piece;
  std::size_t pieceBegin = 0;
  int findings = 0;
  std::wstring notice;
  int centred = 0;
  int unloads = 0;
  int textsSet = 0;
  std::vector<SafetyCopy> offered;
  std::vector<NotePreview> previews;  // of those offered
  std::optional<int> draftTimer;      // its interval, while it runs
  std::function<std::optional<std::size_t>(const std::vector<SafetyCopy>&)> onChoose;
  std::vector<Message> errors;
  std::vector<Message> questions;
  std::function<void()> onAsk;  // while a question is open
  bool answer = true;
};

/// A main window that remembers what the note editor asked of it.
class FakeEditorHost : public All_Notes_frmHost {
 public:
  HourFormat hourFormat() const override { return format; }
  NoteKinds noteKinds() const override { return kinds; }
  bool keepsTyping() const override { return keeps; }
  void saveMainWindow() override {
    if (onSaveMainWindow) onSaveMainWindow();
  }
  void Update_All_Al() override {
    calls.emplace_back("Update_All_Al");
    if (onUpdate) onUpdate();
  }
  void showFirstNote() override {
    calls.emplace_back("showFirstNote");
    if (onShowFirstNote) onShowFirstNote();
  }

  void showWhatComes() override { calls.emplace_back("showWhatComes"); }
  void showFind(std::wstring_view words) override { found.emplace_back(words); }

  HourFormat format = HourFormat::Hours12;
  NoteKinds kinds = kNoteKinds;
  bool keeps = false;
  std::function<void()> onSaveMainWindow;
  std::vector<std::string> calls;
  std::vector<std::wstring> found;
  std::function<void()> onUpdate;
  std::function<void()> onShowFirstNote;
};

}  // namespace kalvora
