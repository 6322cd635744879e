#pragma once

#include <QEvent>

class QObject;

// The messages between a list frame and the form that owns it.
namespace FrameEvents {

// Frame to owner: reload the lists now (the owner runs LoadLVData).
inline constexpr QEvent::Type ReloadLists = static_cast<QEvent::Type>(1025);
// Frame to owner: the selection or the current row changed (UpdateControls).
inline constexpr QEvent::Type SelectionChanged = static_cast<QEvent::Type>(1026);
// Owner to frame, once the owner is built: build the column menus and load
// the saved settings.
inline constexpr QEvent::Type BuildMenus = static_cast<QEvent::Type>(1027);
// Owner to frame, when the owner goes away: save the settings.
inline constexpr QEvent::Type SaveSettings = static_cast<QEvent::Type>(1028);

// Delivers the message at once and returns when the receiver is done.
void send(QObject *receiver, QEvent::Type type);

} // namespace FrameEvents
