#pragma once

#include <QString>

class QQuickWindow;
class SessionHost;

// Scripted runs for screenshots and start-up figures, driven by environment variables:
// TESSARINE_SCRIPT   space-separated steps replayed after the first frame: letters, digits and
//                    operators are key presses; "enter", "backspace", "green", "hint", "confirm",
//                    "today", "latest", "dates" (open the date list), "pick:N" (confirm its line N),
//                    "type:T" (choose game type T), "inactive", "active" (scene phases),
//                    "colourblind" (flip the colour-blind marks), "options", "help", "rules", "back"
//                    (open the sheets and close the top one); "stats",
//                    "distribution", "list" (the statistics sheets), "sort:N" (the sort menu's
//                    button N), "share", "sharestats", "sharelist" (the three share texts), "copy",
//                    "cell:N" (touch board cell N); "keys:WORD",
//                    "keys:enter", "keys:backspace" are real key events sent through the window;
//                    the challenge screens have their own steps (match_script.h).
// TESSARINE_SCREENSHOT  a PNG path: the window is grabbed after the script and the app quits.
// TESSARINE_FIRST_FRAME  when set, prints the first frame's time and resident memory, then quits.
void runScriptedSession(QQuickWindow& window, SessionHost& host);

// Applies one script step; false for a step it does not know.
bool applyScriptStep(SessionHost& host, const QString& step);
