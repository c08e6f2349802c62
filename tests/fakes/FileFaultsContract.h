#pragma once

// Every step of every work on note files fails once, ends short, takes its time, or is the last one
// before the program is killed. Whatever happens, each note is there whole, as it was or as it was
// to become, and what is left behind is no note and goes away. A test program that includes this
// says on which disk.

#include "fakes/FileFaultsWorks.h"

namespace kalvora::filefaults {

/// Whether the user was told of a failure.
inline bool fails(const Work& work, Program& program) {
  try {
    work.run(program);
    return false;
  } catch (const Failure&) {
    return true;
  }
}

inline Files afterUndisturbed(const Disk& disk, const Work& work) {
  Program program(disk);
  work.prepare(program);
  EXPECT_FALSE(fails(work, program));
  return program.filesIn("notes");
}

inline bool isTemporary(const std::string& name) {
  return isTemporaryName(fs::path(name).wstring());
}

inline Files withoutTemporaries(Files files) {
  std::erase_if(files, [](const auto& file) { return isTemporary(file.first); });
  return files;
}

inline std::string takeFrom(Files& files, const std::string& name) {
  auto taken = files.extract(name);
  return taken.empty() ? "missing" : taken.mapped();
}

inline std::string spelledAlike(std::string name) {
  std::ranges::transform(name, name.begin(), [](char c) {
    return static_cast<char>(ordinalUpper(static_cast<wchar_t>(c)));
  });
  return name;
}

/// The notes, in whatever letters a name is spelled: it is the same note.
inline Files spelledAlike(const Files& files) {
  Files found;
  for (const auto& [name, bytes] : files) {
    EXPECT_TRUE(found.emplace(spelledAlike(name), bytes).second) << name << " is there twice";
  }
  return found;
}

/// Each note is as it was or as it was to become, and an old one is gone only where all is done.
inline void expectWhole(const Files& nowSpelled, const Files& beforeSpelled,
                        const Files& afterSpelled) {
  const Files now = spelledAlike(nowSpelled);
  const Files before = spelledAlike(beforeSpelled);
  const Files after = spelledAlike(afterSpelled);
  const auto same = [](const Files& a, const Files& b, const std::string& name) {
    return a.contains(name) == b.contains(name) && (!a.contains(name) || a.at(name) == b.at(name));
  };
  bool oneIsGone = false;
  std::set<std::string> names;
  for (const Files* files : {&now, &before, &after}) {
    for (const auto& [name, bytes] : *files) names.insert(name);
  }
  for (const std::string& name : names) {
    EXPECT_TRUE(same(now, before, name) || same(now, after, name)) << name;
    oneIsGone = oneIsGone || (before.contains(name) && !now.contains(name));
  }
  if (oneIsGone) {
    EXPECT_EQ(now, after);
  }
}

inline void expectWholeCopies(const Program& program, const Files& after) {
  std::set<std::string> allowed = kDrafts;
  allowed.insert("||Two loaves");
  for (const Files& notes : {kNotes, after}) {
    for (const auto& [name, bytes] : notes) allowed.insert(bytes);
  }
  const Files copies = withoutTemporaries(program.filesIn("backup"));
  EXPECT_TRUE(copies.contains(kOldCopy));
  for (const auto& [name, bytes] : copies) EXPECT_TRUE(allowed.contains(bytes)) << name;
}

/// Of each note that is changed or gone there is a copy. Only a copy that fails keeps nobody from
/// saving.
inline void expectOldContentIsKept(const Program& program, const Files& now, Fault fault) {
  std::set<std::string> kept;
  for (const auto& [name, bytes] : program.filesIn("backup")) {
    if (!isTemporary(name)) kept.insert(bytes);
  }
  const Files there = spelledAlike(now);
  for (const auto& [spelled, bytes] : kNotes) {
    const std::string name = spelledAlike(spelled);
    if (fault == Fault::Fail && there.contains(name)) continue;
    const bool stays = there.contains(name) && there.at(name) == bytes;
    EXPECT_TRUE(stays || kept.contains(bytes)) << name;
  }
}

/// In both windows, after they read their lists anew. Paging ends at the last note, however often
/// it goes on.
inline void expectOnlyNotesAreShown(Program& program, const Files& notes) {
  program.browser.refresh();
  const std::set<std::string> inMainWindow = program.titlesOfPages(notes.size() + 1);
  program.editor.Update_Files(NoteKind::Daily, NoteKind::Once);
  std::set<std::string> inEditor;
  for (const NoteKind kind : kNoteKinds) {
    for (const auto& name :
         program.editorView.at(controlOf(ControlArray::File_list_box, kind)).items) {
      inEditor.insert(fs::path(name + std::wstring(extensionOf(kind))).string());
    }
  }
  std::set<std::string> names;
  std::set<std::string> titles;
  for (const auto& [name, bytes] : notes) {
    names.insert(name);
    titles.insert(fs::path(name).stem().string());
  }
  EXPECT_EQ(inMainWindow, titles);
  EXPECT_EQ(inEditor, names);
}

inline int temporariesIn(const Program& program) {
  int count = 0;
  for (const char* folder : {"notes", "backup"}) {
    for (const auto& [name, bytes] : program.filesIn(folder)) count += isTemporary(name) ? 1 : 0;
  }
  return count;
}

/// The next run of the program over the same folder, later.
inline void expectLeftoversToGo(Program& program) {
  for (const char* folder : {"notes", "backup"}) {
    for (const auto& [name, bytes] : program.filesIn(folder)) {
      fs::last_write_time(program.folder.path() / folder / name,
                          fs::file_time_type::clock::now() - std::chrono::minutes(2));
    }
  }
  for (const char* folder : {"notes", "backup"}) {
    program.other.removeLeftovers(program.files, program.folder.path() / folder);
  }
  EXPECT_EQ(temporariesIn(program), 0);
}

inline void letAnotherWriteMeanwhile(Program& program) {
  program.operations.whileDelayed = [&program] {
    ++program.clock.time.minute;
    for (const auto& [name, bytes] : kMeanwhile) {
      program.other.writeSafely(program.folder.path() / "notes" / name, bytes);
    }
  };
}

class FileFaults : public testing::TestWithParam<std::tuple<Disk, Work, Fault>> {};

/// The work with the fault at the `step`-th of its steps. Returns how many temporary files that
/// leaves; nothing where the work has no such step.
inline std::optional<int> tryAtStep(const FileFaults::ParamType& param, int step,
                                    const Files& after) {
  const auto& [disk, work, fault] = param;
  const bool kills = fault == Fault::KillBefore || fault == Fault::KillAfter;
  Program program(disk);
  work.prepare(program);
  letAnotherWriteMeanwhile(program);
  program.operations.arm(fault, step);
  const bool failed = fails(work, program);
  if (!program.operations.wasReached()) return std::nullopt;

  const Files notes = withoutTemporaries(program.filesIn("notes"));
  Files now = notes;
  if (fault == Fault::Delay) {
    for (const auto& other : kMeanwhile) EXPECT_EQ(takeFrom(now, other.first), other.second);
  }
  expectWhole(now, kNotes, after);
  expectWholeCopies(program, after);
  expectOldContentIsKept(program, now, fault);
  EXPECT_TRUE(failed || kills || now == after) << "nobody was told that it is not done";
  EXPECT_FALSE(failed && (fault == Fault::Shorten || fault == Fault::Delay));
  const int left = temporariesIn(program);
  EXPECT_TRUE(kills || left == 0);
  // Only now: paging keeps a draft of what is typed.
  expectOnlyNotesAreShown(program, notes);
  expectLeftoversToGo(program);
  return left;
}

TEST_P(FileFaults, leaveEveryNoteWholeAtEveryStep) {
  const auto& [disk, work, fault] = GetParam();
  const Files after = afterUndisturbed(disk, work);
  int leftovers = 0;
  int step = 1;
  for (; step < kMoreStepsThanAnyWorkHas; ++step) {
    SCOPED_TRACE(step);
    const std::optional<int> left = tryAtStep(GetParam(), step, after);
    if (!left) break;
    leftovers += *left;
    if (HasFailure()) return;
  }
  RecordProperty("steps", step - 1);
  // Where no step was counted, nothing was tried. Only what is written can end short.
  EXPECT_EQ(step > 1, work.writes || fault != Fault::Shorten);
  EXPECT_LT(step, kMoreStepsThanAnyWorkHas);
  // Where no kill left anything behind, nothing was there to go away.
  if (fault == Fault::KillBefore || fault == Fault::KillAfter) {
    EXPECT_EQ(leftovers > 0, work.writes);
  }
}

inline std::string nameOf(const testing::TestParamInfo<FileFaults::ParamType>& info) {
  constexpr const char* kFaults[] = {"Fails", "EndsShort", "IsDelayed", "IsKilledBefore",
                                     "IsKilledAfter"};
  return std::string(std::get<Work>(info.param).name) +
         kFaults[static_cast<std::size_t>(std::get<Fault>(info.param))];
}

/// What INSTANTIATE_TEST_SUITE_P takes: every work with each of the faults.
inline auto everyWorkOn(const Disk& disk, const std::vector<Fault>& faults) {
  return testing::Combine(testing::Values(disk), testing::ValuesIn(kWorks),
                          testing::ValuesIn(faults));
}

}  // namespace kalvora::filefaults
