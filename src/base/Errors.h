#pragma once

#include <cstdint>
#include <exception>
#include <filesystem>
#include <string>
#include <string_view>

namespace kalvora {

/// What ends the event handler that met it: a failure with a sentence for the user.
class Failure : public std::exception {
 public:
  explicit Failure(std::wstring message);

  /// The sentence that the user is shown.
  const std::wstring& message() const noexcept { return message_; }
  /// The same sentence for a log, with "?" for what is not ASCII.
  const char* what() const noexcept override { return narrow_.c_str(); }

  /// Puts the place where it happened before the sentence, for the user to know what to mend.
  void prefix(std::wstring_view where);

 private:
  std::wstring message_;
  std::string narrow_;
};

/// A text that is not the number or the boolean it should be.
class ConversionError : public Failure {
 public:
  explicit ConversionError(std::wstring_view text);

  /// The offending text, whole.
  const std::wstring& text() const noexcept { return text_; }

 private:
  std::wstring text_;
};

/// A number that its 16-bit or 32-bit place cannot hold.
class OverflowError : public Failure {
 public:
  explicit OverflowError(double value);
  /// With a sentence that says more than that the number is too large.
  OverflowError(double value, std::wstring message);

  /// The number that did not fit.
  double value() const noexcept { return value_; }

 private:
  double value_;
};

/// File work that could not be done. Nothing of the user's was changed.
class FileError : public Failure {
 public:
  /// `what` is the start of the sentence, such as L"This file cannot be read: ".
  FileError(std::wstring_view what, const std::filesystem::path& file);

  const std::filesystem::path& file() const noexcept { return file_; }

 private:
  std::filesystem::path file_;
};

}  // namespace kalvora
