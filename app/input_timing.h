#pragma once

#include <QString>

class QQuickWindow;
class SessionHost;

// One key pressed and released through the window, as a desktop keyboard would.
void sendKey(QQuickWindow& window, int key, const QString& text);

// With TESSARINE_INPUT_TIMING set: after the first frame, types on the main screen through the
// window as a keyboard would and prints, for letter keys and for Enter, the main thread's work per
// key and the time from the key to the frame that shows it; then types a word with 5 ms between
// keys and prints how many were dropped. Quits when done.
void runInputTiming(QQuickWindow& window, SessionHost& host);
