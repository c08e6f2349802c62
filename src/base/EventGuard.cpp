#include "base/EventGuard.h"

#include <exception>
#include <new>

#include "base/CodePage.h"
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
    reporter_.report(Windows1252().toText(error.what()));
  } catch (...) {
    reporter_.report(L"An unknown error.");
  }
  return false;
}

}  // namespace kalvora
