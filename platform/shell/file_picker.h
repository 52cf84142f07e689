#pragma once

#include <QFileDialog>

namespace shell {

/// "Data(*.mdb)|*.mdb|All|*.*": pairs of words and patterns, as the toolkit's filters.
QStringList nameFilters(const QString& pairs);

/// The toolkit's own file dialog with every control named, in the language of the program.
class FilePicker : public QFileDialog {
 public:
  FilePicker(QWidget* parent, const QString& title, const QString& current);
};

}  // namespace shell
