#pragma once

// The options dialog, and its pages: IDD_OPTIONS_PAGE + the item of Tree_pic.
#define IDD_OPTIONS 300
#define IDD_OPTIONS_PAGE 310

#define IDC_TREEVIEW1 3000
#define IDC_CMDAPPLY 3001
#define IDC_PAGE_TITLE 3002

// A control of an array has the array's first number + its index.
#define IDC_DISPLAY_CHK 3010
#define IDC_WINDOW_TIME 3020
#define IDC_WINDOW_SIZE 3021
#define IDC_NOTES_TIME 3022
#define IDC_NOTES_SIZE 3023
#define IDC_WINPOS 3030
#define IDC_EKRAN_W 3032
#define IDC_CMDSETWINPOS 3033
#define IDC_SOUND_CH_ALL 3040
#define IDC_SOUND_PATH 3050
#define IDC_CMD_SOUND 3060
#define IDC_PLAY_SOUND 3070
#define IDC_AMPMCHECK 3080
#define IDC_ALWONTOP 3081
#define IDC_FAST_DELETE_MSG_CHECK 3082
#define IDC_ALL_COMFORT 3085
#define IDC_LISTA_SKOR 3090
#define IDC_LABEL4 3091
#define IDC_CMD_REFRESH 3092
#define IDC_COMMAND2 3093
#define IDC_ICON_GRID 3100
#define IDC_COMMAND3 3101
#define IDC_COMFORT 3110
