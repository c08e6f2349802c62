#pragma once

#include <algorithm>
#include <string>

#include "KeepTypingFixture.h"
#include "fakes/FakeAll_Notes_frmView.h"
#include "notes/All_Notes_frm.h"

namespace kalvora {

/// A user with both windows over one folder, put together as in the program.
class TwoWindows : public KeepTypingFixture {
 public:
  TwoWindows() { editorWindows_.editor = &editor; }

  /// The editor with a weekly note on its page.
  void openEditorOn(std::wstring_view name) {
    editor.Form_Load();
    editor.tbsOptions_Click(NoteKind::Weekly);
    pick(name);
  }
  /// A click on the note in the editor's list of weekly ones.
  void pick(std::wstring_view name) {
    const std::vector<std::wstring>& names = editorView.at(list()).items;
    const auto found = std::ranges::find(names, name);
    ASSERT_NE(found, names.end());
    editorView.select(list(), static_cast<int>(found - names.begin()));
    editor.File_list_box_Click(NoteKind::Weekly);
  }
  void leavePage() {
    editor.tbsOptions_Click(NoteKind::Monthly);
    editor.tbsOptions_Click(NoteKind::Weekly);
  }

  static EditorControl list() { return controlOf(ControlArray::File_list_box, NoteKind::Weekly); }
  static EditorControl nameBox() { return controlOf(ControlArray::FName, NoteKind::Weekly); }
  static EditorControl textBox() { return controlOf(ControlArray::Zawartosc, NoteKind::Weekly); }
  static EditorControl tickOf(int weekday) { return {ControlArray::Check1, weekday}; }

  void turn() { click(ButtonId::Buttons_main_05); }

  FakeAll_Notes_frmView editorView;

 private:
  /// What the editor asks of the main window.
  class Host : public FakeEditorHost {
   public:
    explicit Host(TwoWindows& program) : program_(program) {}
    HourFormat hourFormat() const override { return program_.form().hourFormat(); }
    NoteKinds noteKinds() const override { return program_.form().noteKinds(); }
    bool keepsTyping() const override { return program_.form().keepsTyping(); }
    void saveMainWindow() override { program_.form().saveMainWindow(); }
    void Update_All_Al() override { program_.form().Update_All_Al(); }
    void showFirstNote() override { program_.form().showFirstNote(); }

   private:
    TwoWindows& program_;
  };
  /// What the main window asks of the editor.
  class Windows : public FakeOtherWindows {
   public:
    void keepTyped() noexcept override { editor->keepTyped(); }
    bool leave() override { return editor->leave(); }
    void saveQuietly() noexcept override { editor->saveQuietly(); }
    void unloadAll() override { editor->unload(); }

    All_Notes_frm* editor = nullptr;
  };

  OtherWindows& otherWindows() override { return editorWindows_; }
  All_Notes_frm* openedEditor() override { return &editor; }

  Host host_{*this};
  Windows editorWindows_;

 public:
  All_Notes_frm editor{
      {files, keeping, codePage, editorView, host_, folder.path() / "notes", copies, clock}};
};

}  // namespace kalvora
