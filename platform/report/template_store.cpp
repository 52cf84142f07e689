#include "platform/report/template_store.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include "platform/report/prp_loader.h"

namespace report {

text::Result<std::shared_ptr<FrameStore>> TemplateStore::load(const QString& fileName) {
  if (fileName.isEmpty() || fileName.contains(u'/') || fileName.contains(u'\\'))
    return text::Fault{QStringLiteral("%1: not a bare file name").arg(fileName)};
  auto& [stamp, frames] = m_known[fileName];
  if (frames && stamp == stampOf(*frames->form())) return frames;
  frames.reset();
  const auto form = loadForm(m_folder, fileName);
  if (!form.ok()) return form.fault();
  frames = std::make_shared<FrameStore>(form.value());
  stamp = stampOf(*form.value());
  return frames;
}

QString TemplateStore::stampOf(const Form& form) const {
  QString stamp;
  for (const QString& file : form.files) {
    const QFileInfo info(QDir(m_folder).filePath(file));
    stamp += QStringLiteral("%1/%2 ").arg(info.lastModified().toMSecsSinceEpoch()).arg(info.size());
  }
  return stamp;
}

}  // namespace report
