#include "font_configuration.h"

#include <fontconfig/fontconfig.h>

#include <QByteArray>
#include <QFile>
#include <QtGlobal>

QString useGameFontConfiguration() {
  if (qEnvironmentVariableIsSet("FONTCONFIG_FILE") || qEnvironmentVariableIsSet("FONTCONFIG_PATH")) return {};
  QFile file(QStringLiteral(":/Tessarine/fonts/fonts.conf"));
  if (!file.open(QIODevice::ReadOnly)) return QStringLiteral("the game's font configuration is missing");
  const QByteArray text = file.readAll();
  FcConfig* config = FcConfigCreate();
  if (config == nullptr) return QStringLiteral("fontconfig could not make a configuration");
  // The current configuration takes a reference of its own, so ours is released either way.
  const bool loaded = FcConfigParseAndLoadFromMemory(
                          config, reinterpret_cast<const FcChar8*>(text.constData()), FcTrue) == FcTrue;
  const bool current = loaded && FcConfigSetCurrent(config) == FcTrue;
  FcConfigDestroy(config);
  if (!loaded) return QStringLiteral("the game's font configuration could not be read");
  if (!current) return QStringLiteral("the game's font configuration could not load the fonts");
  return {};
}
