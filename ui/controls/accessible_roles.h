// Roles and announcements for screen readers where the toolkit's own don't fit: alerts, options
// that are clicked, lists that say what they are for, and boxes and backdrops.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace tarvix {

// Gives the widget another role than its class has. To be called before anything else is set on the
// widget, since helpers keep what they have once been told.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

// Tells that an alert says something else now. An alert is named by what it says: its own text, or
// the texts of the labels in it; its accessible name stands in while there are none.
void AnnounceAlert(QWidget& alert);

// Tells that a list's name has changed: it holds the selected entry.
void AnnounceEntry(QWidget& list);

}  // namespace tarvix
