#pragma once

// The dialog of the note editor, and the page of each kind: IDD_NOTE_PAGE + kind.
#define IDD_EDIT_NOTES 200
#define IDD_NOTE_PAGE 210

#define IDC_TBSOPTIONS 1990
#define IDC_CMDOK 1991
#define IDC_CMDRESTORE 1992
#define IDC_NOTICE 1999
#define IDC_CMDWHATCOMES 1998
#define IDC_FINDWORDS 1989
#define IDC_CMDFIND 1997

// The dialog that lists the safety copies.
#define IDD_RESTORE 220
#define IDC_COPIES_LABEL 1993
#define IDC_COPIES 1994
#define IDC_COPY_WHEN 1995
#define IDC_COPY_TEXT 1996

// A control of the note editor is its array's first number + its index; the arrays stand in the
// order of ControlArray, ten numbers apart.
#define IDC_FILE_LIST_BOX 2000
#define IDC_FNAME 2010
#define IDC_ZAWARTOSC 2020
#define IDC_CMDNEW 2030
#define IDC_CMDSAVE 2040
#define IDC_CMDDEL 2050
#define IDC_CZASD 2060
#define IDC_CZASW 2070
#define IDC_CZASF 2080
#define IDC_AMPMCOMBO 2090
#define IDC_CHECK1 2100
#define IDC_COMBOM 2110
#define IDC_COMBOY 2120
#define IDC_MONTHY 2130
#define IDC_ONCETIME 2140
#define IDC_ONCEDATE 2150
