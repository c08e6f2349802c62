#pragma once

/// The program's icon among its resources, see kalvora.rc.
#define IDI_KALVORA 1
