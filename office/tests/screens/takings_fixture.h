#pragma once

#include <QApplication>

#include "frame/core/routes.h"
#include "frame/tests/screens/screen_fixture.h"
#include "office/screens/office_screens.h"
#include "platform/screen/testing/screen_probe.h"
#include "platform/store/bulk.h"

namespace office::test {

using namespace Qt::Literals::StringLiterals;

/// The takings over a file of visits, with stand-ins for the screens around them. Today is 15 June 2024.
class TakingsFixture : public frame::test::ScreenFixture {
 protected:
  using Visit = QHash<QString, QString>;

  TakingsFixture() {
    registerScreens(registry, run);
    for (const QString& name : {u"選択3"_s, u"治療台帳4"_s, u"集計カレンダー"_s, u"集計年月"_s})
      standIn(name);
  }

  void SetUp() override {
    ScreenFixture::SetUp();
    makeFile(kFile);
  }

  void addVisits(const QList<Visit>& visits) {
    ASSERT_TRUE(store::addRows(path(kFile), u"カルテ"_s, visits));
  }
  /// Visits on these dates, of patients 見本 1, 見本 2, ...
  void addDates(const QStringList& dates) {
    QList<Visit> visits;
    for (const QString& date : dates)
      visits += Visit{{u"治療日時"_s, date}, {u"氏名"_s, u"見本 %1"_s.arg(visits.size() + 1)}};
    addVisits(visits);
  }

  screen::Screen& takings(const screen::Request& request = {}) {
    screen::Screen* screen = navigator.show(u"集計"_s, request);
    EXPECT_NE(screen, nullptr);
    messages.forget();
    return *screen;
  }

  /// The column of the rows on view, top to bottom.
  QStringList listed(const QString& column = u"氏名"_s) const {
    QStringList values;
    const store::RecordSet& rows = navigator.loaded(u"集計"_s)->source().rows();
    for (int row = 0; row < rows.recordCount(); ++row) values << rows.valueAt(row, column);
    return values;
  }

  void askFor(screen::Screen& screen, const QString& year, const QString& month, const QString& day) {
    screen.setText(u"Combo1"_s, year);
    screen.setText(u"Combo2"_s, month);
    screen.setText(u"Combo3"_s, day);
    screen.trigger(u"Command1"_s);
  }

  /// What is heard of the last thing said on: parts of a sentence, by their order.
  static QString sentence(const QStringList& parts) { return parts.join(voice::kSpeechSeparator); }
  /// The messages since the last call.
  QStringList takeMessages() {
    const QStringList texts = messages.texts();
    messages.forget();
    return texts;
  }

  const QString kFile = u"カルテ2データ2000.mdb"_s;
  const QString kNoRows = u"検索データが０件です。「全患者表示及び再表示」をクリックして下さい。"_s;
  const QString kNotFound = u"該当がありません。"_s;
};

}  // namespace office::test
