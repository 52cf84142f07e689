#include "platform/shell/file_picker.h"

#include <QtWidgets/QtWidgets>

namespace shell {
namespace {

struct PickerName {
  const char* widget;  ///< the toolkit's name of the control
  const char16_t* caption;
};
constexpr PickerName kNames[] = {
    {"lookInCombo", u"場所"},
    {"backButton", u"前のフォルダへ"},
    {"forwardButton", u"次のフォルダへ"},
    {"toParentButton", u"上のフォルダへ"},
    {"newFolderButton", u"新しいフォルダ"},
    {"listModeButton", u"一覧表示"},
    {"detailModeButton", u"詳細表示"},
    {"sidebar", u"よく使う場所"},
    {"listView", u"ファイルの一覧"},
    {"treeView", u"ファイルの一覧"},
    {"fileNameEdit", u"ファイル名"},
    {"fileTypeCombo", u"ファイルの種類"},
};

}  // namespace

QStringList nameFilters(const QString& pairs) {
  const QStringList parts = pairs.split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString words = parts[i].section(u'(', 0, 0).trimmed();
    filters += QStringLiteral("%1 (%2)").arg(words, QString(parts[i + 1]).replace(u';', u' '));
  }
  return filters;
}

FilePicker::FilePicker(QWidget* parent, const QString& title, const QString& current)
    : QFileDialog(parent, title) {
  setOption(QFileDialog::DontUseNativeDialog);
  setLabelText(QFileDialog::LookIn, QStringLiteral("場所:"));
  setLabelText(QFileDialog::FileName, QStringLiteral("ファイル名:"));
  setLabelText(QFileDialog::FileType, QStringLiteral("ファイルの種類:"));
  setLabelText(QFileDialog::Accept, QStringLiteral("OK"));
  setLabelText(QFileDialog::Reject, QStringLiteral("キャンセル"));
  for (const PickerName& name : kNames) {
    const QString caption = QString::fromUtf16(name.caption);
    for (QWidget* widget : findChildren<QWidget*>(QLatin1String(name.widget))) {
      widget->setAccessibleName(caption);
      if (qobject_cast<QAbstractButton*>(widget)) widget->setToolTip(caption);
    }
  }
  // A combo box is heard by the name of its label.
  for (const auto& [label, combo] :
       {std::pair{"lookInLabel", "lookInCombo"}, {"fileTypeLabel", "fileTypeCombo"}}) {
    if (auto* text = findChild<QLabel*>(QLatin1String(label)))
      text->setBuddy(findChild<QComboBox*>(QLatin1String(combo)));
  }
  const QFileInfo there(current);
  if (there.isDir()) {
    setDirectory(there.absoluteFilePath());
  } else if (there.absoluteDir().exists() && !current.isEmpty()) {
    setDirectory(there.absoluteDir());
    selectFile(there.fileName());
  }
}

}  // namespace shell
