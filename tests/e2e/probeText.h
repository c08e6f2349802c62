#pragma once

#include <string>
#include <string_view>

/// UTF-8 as Windows takes texts.
std::wstring wide(std::string_view text);

/// A text of JSON in plain ASCII.
std::string quoted(std::wstring_view text);

/// "true" or "false".
std::string truth(bool value);
