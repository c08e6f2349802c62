#pragma once

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/Form1View.h"

namespace kalvora {

/// A main window that remembers what it was told to show.
class FakeForm1View : public Form1View {
 public:
  struct Field {
    std::wstring text;
    TextSelection selection;
    FieldLook look;
    Editing editing = Editing::Allowed;
    Visibility visibility = Visibility::Shown;
  };
  struct Message {
    std::wstring title;
    std::wstring text;
    friend bool operator==(const Message&, const Message&) = default;
  };

  Desktop desktop() const override { return Desktop(screen, otherMonitors); }
  int doubleClickTime() const override { return 500; }
  void show(Activation activation) override {
    visible = true;
    lastActivation = activation;
    calls.push_back("show");
    if (onShow) onShow();
  }
  void hide() override {
    visible = false;
    calls.push_back("hide");
  }
  Rect place() const override { return rect; }
  void setPlace(const Rect& place) override {
    rect = place;
    calls.push_back("setPlace");
  }
  void setShape(const std::optional<RowSpans>& newShape) override {
    shape = newShape;
    ++shapesSet;
    calls.push_back("setShape");
  }
  void setStackOrder(StackOrder order) override {
    stackOrder = order;
    calls.push_back(order == StackOrder::Topmost ? "OnTop" : "RemOntop");
  }
  void dragByCaption() override {
    if (onDrag) onDrag(*this);
  }
  void unload() override {
    unloaded = true;
    calls.push_back("unload");
  }
  std::wstring text(FieldId field) const override { return at(field).text; }
  void setText(FieldId field, std::wstring_view text) override { at(field).text = text; }
  std::size_t caret(FieldId field) const override { return at(field).selection.end; }
  void setCaret(FieldId field, std::size_t caret) override { setSelection(field, {caret, caret}); }
  TextSelection selection(FieldId field) const override { return at(field).selection; }
  void setSelection(FieldId field, TextSelection selection) override {
    at(field).selection = selection;
  }
  void setFieldLook(FieldId field, const FieldLook& look) override { at(field).look = look; }
  void setFieldEditing(FieldId field, Editing editing) override { at(field).editing = editing; }
  void setFieldVisibility(FieldId field, Visibility visibility) override {
    at(field).visibility = visibility;
  }
  void startTimer(TimerId timer, int interval) override { timers[timer] = interval; }
  void stopTimer(TimerId timer) override { timers.erase(timer); }
  void showError(std::wstring_view title, std::wstring_view text) override {
    errors.push_back({std::wstring(title), std::wstring(text)});
    if (onError) onError();
  }
  Answer ask(std::wstring_view title, std::wstring_view text) override {
    questions.push_back({std::wstring(title), std::wstring(text)});
    if (onAsk) onAsk();
    return answer;
  }
  std::optional<std::size_t> chooseFromMenu(Point at,
                                            std::span<const std::wstring_view> captions) override {
    menuPlace = at;
    menu.assign(captions.begin(), captions.end());
    ++menusOpened;
    if (onMenu) onMenu();
    return menuChoice;
  }
  std::optional<LocalMinute> askMoment(const MomentQuestion& question) override {
    return onMoment ? onMoment(question) : std::nullopt;
  }

  Field& at(FieldId field) { return fields[static_cast<std::size_t>(field)]; }
  const Field& at(FieldId field) const { return fields[static_cast<std::size_t>(field)]; }
  bool runs(TimerId timer) const { return timers.contains(timer); }

  Size screen{1024, 768};  // the primary monitor
  std::vector<Rect> otherMonitors;
  bool visible = false;
  std::optional<Activation> lastActivation;
  Rect rect{10, 20, 30, 40};
  std::optional<RowSpans> shape;
  int shapesSet = 0;
  std::optional<StackOrder> stackOrder;
  bool unloaded = false;
  std::array<Field, kFieldCount> fields;
  std::map<TimerId, int> timers;  // those that run, with their intervals
  std::vector<Message> errors;
  std::vector<Message> questions;
  Answer answer = Answer::Ok;
  std::vector<std::string> calls;
  /// What the user does with the window while it is dragged.
  std::function<void(FakeForm1View&)> onDrag;
  /// The events that come while the window is brought out, and while a message or a question
  /// stands open.
  std::function<void()> onShow;
  std::function<void()> onError;
  std::function<void()> onAsk;

  Point menuPlace;  // of the menu that was opened last
  std::vector<std::wstring> menu;
  int menusOpened = 0;
  std::optional<std::size_t> menuChoice;
  std::function<void()> onMenu;
  /// What the user answers in the dialog for a moment.
  std::function<std::optional<LocalMinute>(const MomentQuestion&)> onMoment;
};

}  // namespace kalvora
