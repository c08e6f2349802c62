#pragma once

// The dialog that asks for the moment at which a reminder comes back.
#define IDD_SNOOZE 410
#define IDC_SNOOZE_DATE 411
#define IDC_SNOOZE_TIME 412
