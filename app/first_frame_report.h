// What the app and the bare window print at their first frame, so that the start script reads the
// two the same way. Qt only: the bare window links nothing of the game.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <cstdio>

// The wall-clock milliseconds of the first frame and the resident memory in kB (VmRSS, the
// kernel's own account of this process), one line each.
inline void printFirstFrameReport() {
  long residentKilobytes = -1;
  QFile status(QStringLiteral("/proc/self/status"));
  if (status.open(QIODevice::ReadOnly)) {
    for (const QByteArray& line : status.readAll().split('\n')) {
      if (line.startsWith("VmRSS:")) residentKilobytes = line.mid(6).trimmed().split(' ').value(0).toLong();
    }
  }
  std::printf("first-frame-epoch-ms %lld\nresident-kB %ld\n", QDateTime::currentMSecsSinceEpoch(),
              residentKilobytes);
  std::fflush(stdout);
}
