#pragma once

#define IDI_KALVORA 1
