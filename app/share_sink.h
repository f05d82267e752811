#pragma once

#include <QString>

// Where a text that leaves the game goes, and where a received one comes from. Until the share
// sheet exists both go through the system clipboard; the screens call only these two.
void sendToShareSink(const QString& text);
QString readPastedText();
