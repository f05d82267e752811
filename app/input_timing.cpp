#include "input_timing.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickWindow>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include "session_host.h"

namespace {

struct Sample {
  double workMs = 0;  // CPU time of the main thread; a store's commit waits on the disk, not the CPU
  double waitMs = 0;  // wall time of the same handling, the commit's wait included
  double frameMs = 0;
};

double threadCpuMs() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// The key's handling on the main thread, then the wait for the frame that shows its result.
Sample timeKey(QQuickWindow& window, int key, const QString& text) {
  QEventLoop frame;
  const auto swapped = QObject::connect(&window, &QQuickWindow::frameSwapped, &frame, &QEventLoop::quit);
  QTimer::singleShot(1000, &frame, &QEventLoop::quit);
  QElapsedTimer clock;
  clock.start();
  const double cpu = threadCpuMs();
  sendKey(window, key, text);
  const double work = threadCpuMs() - cpu;
  const double wait = static_cast<double>(clock.nsecsElapsed()) / 1e6;
  window.update();
  frame.exec();
  QObject::disconnect(swapped);
  return {work, wait, static_cast<double>(clock.nsecsElapsed()) / 1e6};
}

void report(const char* name, std::vector<Sample> samples) {
  if (samples.empty()) return;
  const auto median = [](std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
  };
  std::vector<double> work, wait, frame;
  for (const Sample& s : samples) {
    work.push_back(s.workMs);
    wait.push_back(s.waitMs);
    frame.push_back(s.frameMs);
  }
  std::printf(
      "%s: %zu keys, main-thread CPU median %.2f ms max %.2f ms, handling wall median %.2f ms, key to frame "
      "median "
      "%.2f ms max %.2f ms\n",
      name, samples.size(), median(work), *std::max_element(work.begin(), work.end()), median(wait),
      median(frame), *std::max_element(frame.begin(), frame.end()));
}

std::string activeRowText(const SessionHost& host) {
  const auto& v = host.view();
  std::string row;
  for (int column = 0; column < v.gameLetters; ++column)
    row += v.cellLetter[static_cast<std::size_t>(v.activeRow * v.gameLetters + column)];
  return row;
}

}  // namespace

void sendKey(QQuickWindow& window, int key, const QString& text) {
  QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
  QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QGuiApplication::sendEvent(&window, &down);
  QGuiApplication::sendEvent(&window, &up);
}

void runInputTiming(QQuickWindow& window, SessionHost& host) {
  // Valid words of the five-letter game; none is the answer of the day the measuring script pins.
  const QStringList words = {QStringLiteral("CRANE"), QStringLiteral("PLUMB"), QStringLiteral("DWARF"),
                             QStringLiteral("TIMID"), QStringLiteral("BLIMP")};
  std::vector<Sample> letters, enters;
  for (const QString& word : words) {
    for (const QChar letter : word)
      letters.push_back(timeKey(window, letter.unicode(), QString(letter)));
    enters.push_back(timeKey(window, Qt::Key_Return, QStringLiteral("\r")));
  }
  report("letter", letters);
  report("enter", enters);

  // Keys 5 ms apart: each must land, none may wait for a frame or an animation.
  const QString burst = QStringLiteral("SLOTH");
  for (int i = 0; i < burst.size(); ++i) {
    const QChar letter = burst[i];
    QTimer::singleShot(5 * i, &window,
                       [&window, letter] { sendKey(window, letter.unicode(), QString(letter)); });
  }
  QTimer::singleShot(5 * static_cast<int>(burst.size()) + 200, &window, [&host, burst] {
    const std::string typed = activeRowText(host);
    int dropped = 0;
    for (int i = 0; i < burst.size(); ++i)
      dropped += typed.find(static_cast<char>(burst[i].unicode())) == std::string::npos ? 1 : 0;
    std::printf("burst of %lld keys 5 ms apart: %d dropped (row holds %s)\n",
                static_cast<long long>(burst.size()), dropped, typed.c_str());
    std::fflush(stdout);
    QCoreApplication::quit();
  });
}
