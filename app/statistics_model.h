#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QVariantMap>
#include <optional>

#include "statistics/fifth_view.h"
#include "statistics/second_view.h"
#include "statistics/sixth_view.h"

class SessionHost;

// The statistics screen and the two sheets it opens. Each screen is a copy taken when it opens,
// kept here with its own little state (the sort flags), and handed to QML as plain values; the
// copies never follow the session, except that the thank-you cover blanks their dates. Opening a
// screen emits its signal, on which the sheet host pushes the sheet.
class StatisticsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Owned by the session host")
  Q_PROPERTY(QVariantMap second READ second NOTIFY changed)
  Q_PROPERTY(QVariantMap fifth READ fifth NOTIFY changed)
  Q_PROPERTY(QVariantMap sixth READ sixth NOTIFY changed)

 public:
  explicit StatisticsModel(SessionHost& host);

  QVariantMap second() const { return second_; }
  QVariantMap fifth() const { return fifth_; }
  QVariantMap sixth() const { return sixth_; }

  // Refreshes the session and copies the figures as they stand.
  Q_INVOKABLE void openStatistics();
  Q_INVOKABLE void openDistribution();
  // Opens the list in date descending order; does nothing while the list button is off.
  Q_INVOKABLE void openList();
  // A button of the sort menu by its index, the cancel button being 0.
  Q_INVOKABLE void pressSort(int button);
  Q_INVOKABLE void chooseDateFormat(const QString& format);
  Q_INVOKABLE void shareStatistics();
  // An empty list has nothing to share: the button stays as it is and nothing goes out.
  Q_INVOKABLE void shareList();

 public slots:
  void sessionUpdated();

 signals:
  void changed();
  void secondOpened();
  void fifthOpened();
  void sixthOpened();

 private:
  double screenWidth() const;
  void publish();

  SessionHost& host_;
  std::optional<tessarine::SecondView> secondView_;
  std::optional<tessarine::FifthView> fifthView_;
  std::optional<tessarine::SixthView> sixthView_;
  QVariantMap second_, fifth_, sixth_;
};
