#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "notes/NoteFollower.h"

namespace kalvora {

/// Writes down what becomes of notes: L"a.txt = b.txt" for a copy, L"a.txt > b.txt" for a new name,
/// L"- a.txt" for a deletion; and apart, which were written.
class FakeNoteFollower : public NoteFollower {
 public:
  void noteCopied(std::wstring_view from, std::wstring_view to) override {
    heard.push_back(std::wstring(from) + L" = " + std::wstring(to));
  }
  void noteRenamed(std::wstring_view from, std::wstring_view to) override {
    heard.push_back(std::wstring(from) + L" > " + std::wstring(to));
  }
  void noteDeleted(std::wstring_view name) override { heard.push_back(L"- " + std::wstring(name)); }

  void noteWritten(std::wstring_view name) override { written.emplace_back(name); }

  std::vector<std::wstring> heard;
  std::vector<std::wstring> written;
};

}  // namespace kalvora
