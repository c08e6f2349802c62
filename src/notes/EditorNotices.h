#pragma once

#include <string>
#include <string_view>

namespace kalvora {

/// That a note was deleted, and can be brought back: nothing is deleted that is not kept, see
/// KeepingFileWriter.
std::wstring deletedNotice(std::wstring_view name);
/// The same of one that was typed over: the words are a draft.
std::wstring typedOverDeletedNotice(std::wstring_view name);

}  // namespace kalvora
