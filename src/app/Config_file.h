#pragma once

#include "app/ProfileReader.h"
#include "base/CodePage.h"
#include "skin/SkinValues.h"

namespace kalvora {

/// The program's only reading of ini files. Nothing writes one.
class Config_file : public SkinValues {
 public:
  /// Both must outlive this object.
  Config_file(ProfileReader& profiles, const CodePage& codePage)
      : profiles_(profiles), codePage_(codePage) {}

  /// Read a value of an ini file: at most its first 254 bytes, or `fallback` where the file, the
  /// section or the key is missing or the value is empty.
  std::wstring Read_ini_value(std::wstring_view section, std::wstring_view key,
                              const std::filesystem::path& file, std::wstring_view fallback);

  std::wstring value(std::wstring_view section, std::wstring_view key,
                     const std::filesystem::path& file, std::wstring_view fallback) override {
    return Read_ini_value(section, key, file, fallback);
  }

 private:
  ProfileReader& profiles_;
  const CodePage& codePage_;
};

}  // namespace kalvora
