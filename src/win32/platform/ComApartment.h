#pragma once

#include <objbase.h>
#include <windows.h>

namespace kalvora {

/// COM on this thread, for as long as this object lives.
class ComApartment {
 public:
  ComApartment() : entered_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
  ~ComApartment() {
    if (entered_) CoUninitialize();
  }
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;

 private:
  bool entered_;
};

}  // namespace kalvora
