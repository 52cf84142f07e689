#include "frame/core/settings_slots.h"

#include <QStringList>

#include "platform/text/quoted_list.h"
#include "platform/text/sjis.h"
#include "platform/text/whole_file.h"

namespace frame {

text::Result<SettingsSlots> readSettingsFile(const QString& path) {
  const auto bytes = text::readWholeFile(path);
  if (!bytes) return bytes.fault();
  const QString line = text::fromSjisKeepingAll(*bytes);
  const QStringList fields = text::readQuotedList(line);
  SettingsSlots settings;
  const auto count = std::min<qsizetype>(fields.size(), SettingsSlots::kFileFields);
  for (int i = 0; i < count; ++i) settings[i] = fields[i];
  settings.readWhole = count == SettingsSlots::kFileFields && !line.contains(QChar::ReplacementCharacter);
  return settings;
}

text::Done writeSettingsFile(const QString& path, const SettingsSlots& settings) {
  QStringList fields;
  for (int i = 0; i < SettingsSlots::kFileFields; ++i) fields += settings[i];
  return text::writeWholeFile(path, text::toSjisKeepingAll(text::writeQuotedList(fields)));
}

}  // namespace frame
