#include "win32/toolkit/VisualStyles.h"

#include <commctrl.h>

#include "win32/platform/SystemFunction.h"

namespace kalvora {

namespace {

HANDLE manifestContext() noexcept {
  ACTCTXW description{};
  description.cbSize = sizeof description;
  description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
  description.hModule = GetModuleHandleW(nullptr);
  description.lpResourceName = MAKEINTRESOURCEW(IDR_VISUAL_STYLES);
  return CreateActCtxW(&description);
}

}  // namespace

VisualStyles::VisualStyles() noexcept {
  // Kept for good: it lasts as long as the windows that were made with it.
  static const HANDLE context = manifestContext();
  // A program without the manifest, such as a test, keeps the plain look.
  if (context != INVALID_HANDLE_VALUE) ActivateActCtx(context, &active_);
}

VisualStyles::~VisualStyles() {
  // By force: code of others that ran meanwhile, such as that of a file dialog, can have left
  // something of its own active.
  if (active_ != 0) DeactivateActCtx(DEACTIVATE_ACTCTX_FLAG_FORCE_EARLY_DEACTIVATION, active_);
}

void registerControls(DWORD classes) noexcept {
  const auto make =
      systemFunction<decltype(InitCommonControlsEx)>(L"comctl32.dll", "InitCommonControlsEx");
  const INITCOMMONCONTROLSEX controls{sizeof controls, classes};
  if (make != nullptr) make(&controls);
}

}  // namespace kalvora
