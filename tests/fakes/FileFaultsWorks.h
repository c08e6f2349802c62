#pragma once

// Every work on note files, for FileFaultsContract.h to fail each of its steps.

#include "fakes/FileFaultsProgram.h"

namespace kalvora::filefaults {

struct Work {
  const char* name;
  void (*prepare)(Program&);
  void (*run)(Program&);
  bool writes = true;  // and does not only move files
};

inline void PrintTo(const Work& work, std::ostream* out) {
  *out << work.name;
}

inline void showGym(Program& program) {
  program.showInMainWindow(L"Gym.txt");
  program.typeInMainWindow(L"Towel and shoes, and water");
}

inline void pickGym(Program& program) {
  program.pickInEditor(L"Gym");
  program.typeInEditor(ControlArray::Zawartosc, L"Short");
}

inline void pickGymAndName(Program& program, std::wstring_view name) {
  pickGym(program);
  program.typeInEditor(ControlArray::FName, name);
}

inline void separateTheDisks(Program& program) {
  program.operations.foldersAreOnTwoDisks = true;
}

inline void pickGymOnAnotherDisk(Program& program) {
  separateTheDisks(program);
  pickGym(program);
}

inline void showGymToBeKept(Program& program) {
  program.keepTyping();
  showGym(program);
}

inline void pickGymToBeKept(Program& program) {
  program.keepTyping();
  pickGym(program);
}

/// Where a note cannot be saved the user is asked whether it is left all the same.
inline void requireNoQuestion(const Program& program) {
  if (program.wasAsked()) throw Failure(L"The user was asked.");
}

inline void leaveMainWindow(Program& program) {
  program.browser.leave();
  requireNoQuestion(program);
}

inline void leaveEditor(Program& program) {
  program.editor.leave();
  requireNoQuestion(program);
}

inline void deletePlain(Program& program) {
  program.browser.Del_na_przycisku(DeleteKind::Plain);
}

inline void deleteInEditor(Program& program) {
  program.editor.cmdDel(NoteKind::Fast);
}

inline void saveInEditor(Program& program) {
  program.editor.cmdSave(NoteKind::Fast);
}

inline void keepDraftOfGym(Program& program) {
  showGym(program);
  program.browser.draft().keep();
  program.typeInMainWindow(L"Short");
}

inline const Work kWorks[] = {
    {"MainWindowDraft", showGym, [](Program& program) { program.browser.odczytaj(L"Milk.txt"); }},
    {"MainWindowDraftAgain", keepDraftOfGym,
     [](Program& program) { program.browser.draft().keep(); }},
    {"MainWindowDraftThenSave", keepDraftOfGym,
     [](Program& program) { program.browser.zapisz(L"Gym"); }},
    {"EditorDraft", pickGym, [](Program& program) { program.editor.cmdNew(NoteKind::Fast); }},
    {"EditorDraftRenamed",
     [](Program& program) {
       pickGym(program);
       program.editor.keepTyped();
       program.typeInEditor(ControlArray::FName, L"Swim");
       program.typeInEditor(ControlArray::Zawartosc, L"Short, and more");
     },
     [](Program& program) { program.editor.cmdOK(); }},
    {"MainWindowSave", showGym, [](Program& program) { program.browser.zapisz(L"Gym"); }},
    {"MainWindowRename", showGym, [](Program& program) { program.browser.zapisz(L"Swim"); }},
    {"MainWindowRenameInOtherLetters", showGym,
     [](Program& program) { program.browser.zapisz(L"GYM"); }},
    {"MainWindowRenameOntoAnother", showGym,
     [](Program& program) { program.browser.zapisz(L"Milk"); }},
    {"MainWindowLeave", showGymToBeKept, leaveMainWindow},
    {"MainWindowLeaveRenamed",
     [](Program& program) {
       showGymToBeKept(program);
       program.typeTitleInMainWindow(L"Swim");
     },
     leaveMainWindow},
    {"EditorLeave", pickGymToBeKept, leaveEditor},
    {"EditorLeaveRenamed",
     [](Program& program) {
       pickGymToBeKept(program);
       program.typeInEditor(ControlArray::FName, L"Swim");
     },
     leaveEditor},
    {"MainWindowNew", [](Program& program) { program.browser.startNewNote(); },
     [](Program& program) { program.browser.zapisz(L"Untiled"); }},
    {"MainWindowDelete", [](Program&) {}, deletePlain, false},
    {"MainWindowDeleteToAnotherDisk", separateTheDisks, deletePlain},
    {"MainWindowFastDelete", showGym,
     [](Program& program) {
       if (program.browser.Del_na_przycisku(DeleteKind::Fast))
         program.browser.Odczytaj_na_przycisku();
     }},
    {"EditorSave", pickGym, saveInEditor},
    {"EditorNew", [](Program& program) { program.editor.cmdNew(NoteKind::Fast); }, saveInEditor},
    {"EditorRename", [](Program& program) { pickGymAndName(program, L"Swim"); }, saveInEditor},
    {"EditorRenameInOtherLetters", [](Program& program) { pickGymAndName(program, L"GYM"); },
     saveInEditor},
    {"EditorRenameOntoAnother", [](Program& program) { pickGymAndName(program, L"Milk"); },
     saveInEditor},
    {"EditorDelete", pickGym, deleteInEditor, false},
    {"EditorDeleteToAnotherDisk", pickGymOnAnotherDisk, deleteInEditor},
    {"EditorRestore",
     [](Program& program) {
       program.editorView.onChoose = [](const auto&) { return std::optional<std::size_t>(0); };
     },
     [](Program& program) { program.editor.cmdRestore(); }},
};

}  // namespace kalvora::filefaults
