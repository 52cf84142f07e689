#pragma once

#include <map>

#include "platform/report/loaded_form.h"
#include "platform/text/result.h"

namespace report {

/// Templates of the program folder, read once and cached until their files change.
class TemplateStore {
 public:
  explicit TemplateStore(const QString& folder) : m_folder(folder) {}

  /// Bare file name. A path out of the folder is refused.
  text::Result<std::shared_ptr<FrameStore>> load(const QString& fileName);

 private:
  /// Time and size of the template's file and of those of its bases.
  QString stampOf(const Form& form) const;

  QString m_folder;
  std::map<QString, std::pair<QString, std::shared_ptr<FrameStore>>> m_known;
};

}  // namespace report
