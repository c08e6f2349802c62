#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "notes/NoteFollower.h"

namespace kalvora {

/// Writes down what becomes of notes: L"a.txt = b.txt" for a copy, L"a.txt > b.txt" for a new name,
/// L"- a.txt" for a deletion.
class FakeNoteFollower : public NoteFollower {
 public:
  void noteCopied(std::wstring_view from, std::wstring_view to) override {
    heard.push_back(std::wstring(from) + L" = " + std::wstring(to));
  }
  void noteRenamed(std::wstring_view from, std::wstring_view to) override {
    heard.push_back(std::wstring(from) + L" > " + std::wstring(to));
  }
  void noteDeleted(std::wstring_view name) override { heard.push_back(L"- " + std::wstring(name)); }

  std::vector<std::wstring> heard;
};

}  // namespace kalvora
