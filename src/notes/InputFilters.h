#pragma once

// The filters moved to base/, where the options reach them too.
#include "base/InputFilters.h"
