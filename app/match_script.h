#pragma once

#include <QString>

class SessionHost;

// Scripted steps of the challenge screens (see screenshot.h): "challenge" and "challengestats"
// open the screens; "m:accept", "m:submit", "m:walk", "m:undo", "m:send", "m:clearrow" press
// buttons; "m:type:TEXT" types keys or key digits; "m:choose:N" picks the Nth choice;
// "m:save:NAME" saves. False for a step that is not one of these.
bool applyMatchStep(SessionHost& host, const QString& step);
