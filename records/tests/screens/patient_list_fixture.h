#pragma once

#include "records/tests/screens/records_fixture.h"

namespace records::test {

using namespace Qt::Literals::StringLiterals;

/// The list of patients, its dialogs, and patients to find in it.
class PatientListFixture : public RecordsFixture {
 protected:
  screen::Screen& list() { return shown(u"一覧表"); }
  /// The names in the list, top to bottom.
  QStringList names() {
    const store::RecordSet& rows = list().source().rows();
    QStringList names;
    for (int row = 0; row < rows.recordCount(); ++row) names << rows.valueAt(row, u"氏名"_s);
    return names;
  }
  void extract(const QString& column, const QString& word) {
    list().trigger(u"Command2"_s);
    screen::Screen& dialog = *navigator.loaded(u"抽出2"_s);
    dialog.setText(u"Combo1"_s, column);
    dialog.setText(u"Text1"_s, word);
    dialog.trigger(u"Command1"_s);
  }
  screen::Screen& kinds(const QString& kind) {
    list().trigger(u"Command3"_s);
    screen::Screen& dialog = *navigator.loaded(u"抽出3"_s);
    dialog.choose(u"Frame1"_s, kind);
    return dialog;
  }
  void extractKind(const QString& kind, const QString& input, const QString& word) {
    screen::Screen& dialog = kinds(kind);
    dialog.setText(input, word);
    dialog.trigger(u"Command1"_s);
  }
  void extractSex(const QString& sex) {
    screen::Screen& dialog = kinds(u"性別"_s);
    dialog.choose(u"Frame2"_s, sex);
    dialog.trigger(u"Command1"_s);
  }
  void sort(const QString& column, const QString& button) {
    list().trigger(u"Command7"_s);
    screen::Screen& dialog = *navigator.loaded(u"ソート1"_s);
    dialog.setText(u"Combo1"_s, column);
    dialog.trigger(button);
  }
  /// Patients whose sexes, ages, keywords and addresses differ.
  void addFour() {
    addPatient({{u"氏名"_s, u"見本 一郎"_s},
                {u"性別"_s, u"男"_s},
                {u"年齢"_s, u"65"_s},
                {u"キーワード1"_s, u"腰痛"_s},
                {u"住所1"_s, u"架空市中央1"_s}});
    addPatient({{u"氏名"_s, u"見本 二子"_s},
                {u"性別"_s, u"女"_s},
                {u"年齢"_s, u"９"_s},
                {u"キーワード2"_s, u"腰痛"_s},
                {u"住所2"_s, u"架空市港町2"_s}});
    addPatient({{u"氏名"_s, u"例示 三男"_s},
                {u"性別"_s, u"男"_s},
                {u"年齢"_s, u"100"_s},
                {u"キーワード1"_s, u"腰痛症"_s},
                {u"住所3"_s, u"架空市港町3"_s}});
    addPatient({{u"氏名"_s, u"例示 四子"_s}, {u"性別"_s, u"女"_s}, {u"年齢"_s, u""_s}});
  }

  const QString kNoRows = u"検索データが０件です。「全患者表示及び再表示」をクリックして下さい。"_s;
  const QString kNotFound = u"該当がありません。"_s;
  const QString kPart = QChar(254);
};

}  // namespace records::test
