// Roles for screen readers and other helpers where the toolkit's own don't fit, and what they are
// told when something changes.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace tarvix {

// Gives the widget another role than its class has. To be called before anything else is set on the
// widget, since helpers keep what they have once been told.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

// A widget that is only there for the eyes. The frame around it needs a role by SetAccessibleRole.
void HideFromHelpers(QWidget& widget);
bool IsHiddenFromHelpers(const QObject& widget);

// What an alert says: its own text, or the texts of the labels in it. It is named by that; its
// accessible name stands in while it says nothing.
QString AlertText(const QWidget& alert);

// Tells that the widget is named otherwise now: an alert with another text, a list with another
// entry, a field that has become a result.
void AnnounceName(QWidget& widget);

}  // namespace tarvix
