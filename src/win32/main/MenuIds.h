#pragma once

#define IDB_MENU_BAR 400
