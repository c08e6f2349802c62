#pragma once

// The window "Find".
#define IDD_FIND 250

#define IDC_FIND_WORDS 2501
#define IDC_FIND_ROWS_LABEL 2502
#define IDC_FIND_ROWS 2503
#define IDC_FIND_NOTICE 2504
