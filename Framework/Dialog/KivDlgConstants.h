#pragma once

// Numbers of the dialog toolkit that pages pass on.

// Sensitivity of a control.
inline constexpr unsigned long KivDlgEnabled = 8;
inline constexpr unsigned long KivDlgDisabled = 16;

// State of a check button or a radio button.
inline constexpr unsigned long KivDlgChecked = 0x40000;
inline constexpr unsigned long KivDlgUnchecked = 0x80000;

// Visibility of a dialog object. A reserved one keeps its cell but is never shown.
inline constexpr unsigned long KivDlgHidden = 1;
inline constexpr unsigned long KivDlgShown = 2;
inline constexpr unsigned long KivDlgReserved = 4;

// How an object is attached to its grid cell: a set of sides and centers.
inline constexpr unsigned int KivDlgAttachTop = 2;
inline constexpr unsigned int KivDlgAttachRight = 4;
inline constexpr unsigned int KivDlgAttachLeft = 8;
inline constexpr unsigned int KivDlgAttachBottom = 16;
inline constexpr unsigned int KivDlgCenterHorizontally = 32;
inline constexpr unsigned int KivDlgCenterVertically = 64;
inline constexpr unsigned int KivDlgAttachAllSides = 30; // fills its cell
inline constexpr unsigned int KivDlgAttachAllSidesCentered = 126;
inline constexpr unsigned int KivDlgAttachLeftCentered = 88; // at the left of its cell, vertically centered

// Style of a frame whose children are placed by grid constraints.
inline constexpr unsigned long KivDlgGridLayout = 0x80001;

// Style of a window that does not wait for its end, with a close button.
inline constexpr unsigned long KivDlgModelessWindow = 0x11440201;
