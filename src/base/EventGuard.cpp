#include "base/EventGuard.h"

#include <exception>
#include <new>
#include <string>

#include "base/Errors.h"

namespace kalvora {

bool EventGuard::run(const std::function<void()>& handler) noexcept {
  try {
    handler();
    return true;
  } catch (const Failure& failure) {
    reporter_.report(failure.message());
  } catch (const std::bad_alloc&) {
    reporter_.report(L"There is not enough memory.");
  } catch (const std::exception& error) {
    const std::string_view what = error.what();
    reporter_.report(std::wstring(what.begin(), what.end()));
  } catch (...) {
    reporter_.report(L"An unknown error.");
  }
  return false;
}

}  // namespace kalvora
