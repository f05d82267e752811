#pragma once

#include <QVariantMap>

#include "statistics/fifth_view.h"
#include "statistics/second_view.h"
#include "statistics/sixth_view.h"

// The statistics screens as plain values for QML: every text and look comes from the core's
// screen models, so the sheets only lay them out.
QVariantMap secondValues(const tessarine::SecondView& view);
QVariantMap fifthValues(const tessarine::FifthView& view);
QVariantMap sixthValues(const tessarine::SixthView& view);
