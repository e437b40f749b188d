// Measures what the main window shows: texts that don't fit, controls that overlap or stick out,
// columns that are nearly but not quite aligned, texts that can't be read on their background.
#pragma once

#include "app/window/frm_tarvix.h"

#include <QStringList>

namespace tarvix::testing {

// Texts, overlaps, places inside the parents and alignment of everything that is visible. Each
// fault is a line that names its controls.
QStringList LayoutFaults(MainForm& form);

// As above for the entries of every visible list, selected or not.
QStringList ListEntryFaults(MainForm& form);

// Visible texts whose contrast against what is painted behind them is below 4.5 to 1: by the
// control's palette and, where `strokesAreSolid` (fonts of 14 points and more), also as painted.
QStringList ContrastFaults(frmTarvix& window, bool strokesAreSolid);

}  // namespace tarvix::testing
