#pragma once

#include <objbase.h>
#include <oleauto.h>
#include <windows.h>

#include <string_view>

namespace kalvora {

// What the program uses of COM. Its libraries are loaded with the first call: only screen readers
// need them, and no start waits for them.

/// COM on this thread, for as long as this object lives.
class ComApartment {
 public:
  ComApartment();
  ~ComApartment();
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;

 private:
  bool entered_;
};

/// An object of a class that a library of the system has; null where it has none. Needs an
/// apartment.
void createComObject(REFCLSID classId, REFIID interfaceId, void** object);
/// Lets go of all other programs that hold the object.
void disconnectComObject(IUnknown* object);
/// A text for another program, which ends it; null where there is no room for it.
BSTR comText(std::wstring_view text);

}  // namespace kalvora
