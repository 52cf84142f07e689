#include "claims/tests/screens/claim_list_fixture.h"

// The claim list: opening and deleting claims, the rooms around it, what is heard.

namespace claims {
namespace {

/// Rows of the second file as they stand in the file.
class SecondHalf {
 public:
  explicit SecondHalf(const QString& path) {
    auto database = store::Database::open(path);
    EXPECT_TRUE(database.ok());
    auto rows = store::RecordSet::open(database.value(), qs(u"保険申請"));
    EXPECT_TRUE(rows.ok());
    m_rows = std::move(rows.value());
  }
  int count() const { return m_rows.recordCount(); }
  bool find(qint64 id) {
    m_rows.setBookmark(id);
    return m_rows.bookmark() == id;
  }
  QString value(const char16_t* column) const { return m_rows.value(qs(column)); }
  void remove(qint64 id) {
    ASSERT_TRUE(find(id));
    ASSERT_TRUE(m_rows.remove().ok());
  }

 private:
  store::RecordSet m_rows;
};

class ClaimListCommands : public ClaimListTest {
 protected:
  SecondHalf second() { return SecondHalf(path(qs(u"保険申請2000_2.mdb"))); }
  SecondHalf first() { return SecondHalf(path(qs(u"保険申請2000_1.mdb"))); }
};

TEST_F(ClaimListCommands, OpensTheClaimOfTheRow) {
  for (int i = 0; i < 3; ++i) add(acupuncture());
  openList();
  press(u"Command1");
  m_list->source().moveTo(2);
  press(u"Command1");
  EXPECT_EQ(m_navigator.shows, QStringList({qs(u"frmレセプトフォーム"), qs(u"frmレセプトフォーム")}));
  EXPECT_EQ(m_navigator.requests[0].as<routes::ClaimForm>()->id, 3);
  EXPECT_EQ(m_navigator.requests[1].as<routes::ClaimForm>()->id, 1);
}

TEST_F(ClaimListCommands, OpensTheRowOfASortedAndOfANarrowedList) {
  addClaim({{u"申請年月", u"令和6年9月"}, {u"氏名", u"見本 太郎"}});
  addClaim({{u"申請年月", u"令和6年8月"}, {u"氏名", u"例示 花子"}});
  openList();
  m_list->opened(routes::ClaimList{.criteria = {}, .order = qs(u"申請年月 ASC")});
  press(u"Command1");
  search(u"氏名", qs(u"太郎"));
  press(u"Command1");
  ASSERT_EQ(m_navigator.requests.size(), 2);
  EXPECT_EQ(m_navigator.requests[0].as<routes::ClaimForm>()->id, 2) << "令和6年8月 stands first";
  EXPECT_EQ(m_navigator.requests[1].as<routes::ClaimForm>()->id, 1);
}

TEST_F(ClaimListCommands, EnterOnTheRowOpensItToo) {
  add(acupuncture());
  add(acupuncture());
  openList();
  activate();
  m_list->focusOn(qs(u"DBGrid1"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  ASSERT_EQ(m_navigator.shows, QStringList(qs(u"frmレセプトフォーム")));
  EXPECT_EQ(m_navigator.requests[0].as<routes::ClaimForm>()->id, 1);
}

TEST_F(ClaimListCommands, AMissingSecondHalfIsMadeAtOpening) {
  add(acupuncture());
  const qint64 id = add(acupuncture());
  second().remove(id);
  openList();
  press(u"Command1");
  SecondHalf rows = second();
  EXPECT_EQ(rows.count(), 2);
  ASSERT_TRUE(rows.find(id));
  EXPECT_EQ(rows.value(u"txt dummy1"), QString::number(id));
  for (const char16_t* column : {u"memo dummy1", u"memo dummy2", u"memo dummy3", u"memo dummy4"})
    EXPECT_EQ(rows.value(column), qs(u" ")) << qs(column).toStdString();
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"frmレセプトフォーム")));
  EXPECT_EQ(told(), QStringList());
}

TEST_F(ClaimListCommands, AnExistingSecondHalfIsLeftAlone) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"memo dummy1"), qs(u"頸腕の所見"));
  const qint64 id = add(claim);
  openList();
  press(u"Command1");
  EXPECT_EQ(stored(id).named(qs(u"memo dummy1")), qs(u"頸腕の所見"));
}

TEST_F(ClaimListCommands, DeleteTakesBothHalvesAfterYes) {
  for (int i = 0; i < 3; ++i) add(acupuncture());
  openList();
  m_list->source().moveTo(1);
  m_messages.forget();
  answer({true});
  press(u"cmdDelete");
  EXPECT_EQ(told(), QStringList(qs(u"　現在の表示該当患者のレセプトを削除しますか？")));
  EXPECT_EQ(shown(), QStringList({qs(u"3"), qs(u"1")}));
  EXPECT_TRUE(m_channel.said().contains(qs(u"削除しました") + voice::kSpeechSeparator + qs(u"2件です。")));
  EXPECT_FALSE(first().find(2));
  EXPECT_FALSE(second().find(2));
  EXPECT_TRUE(second().find(3));
}

TEST_F(ClaimListCommands, NoDeletesNothing) {
  add(acupuncture());
  openList();
  answer({false});
  press(u"cmdDelete");
  EXPECT_EQ(first().count(), 1);
  EXPECT_EQ(second().count(), 1);
}

TEST_F(ClaimListCommands, TheFormOfADeletedClaimIsClosed) {
  open(add(acupuncture()));
  openList();
  answer({true});
  press(u"cmdDelete");
  EXPECT_EQ(m_navigator.unloads, QStringList(qs(u"frmレセプトフォーム")));
}

TEST_F(ClaimListCommands, TheFormOfAnotherClaimStaysOpen) {
  open(add(acupuncture()));
  add(acupuncture());
  openList();
  answer({true});
  press(u"cmdDelete");
  EXPECT_EQ(m_navigator.unloads, QStringList());
  EXPECT_EQ(shown(), QStringList(qs(u"1")));
}

TEST_F(ClaimListCommands, TheCloseBoxPointsToTheButton) {
  openList();
  activate();
  told();
  m_list->close();
  EXPECT_EQ(told(), QStringList(qs(u"「閉じる」ボタンより終了して下さい")));
  EXPECT_TRUE(m_list->isVisible());
  press(u"cmdClose");
  EXPECT_FALSE(m_list->isVisible());
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"選択3")));
}

TEST_F(ClaimListCommands, TheMenuOffersWhatTheButtonsDo) {
  const char16_t* captions[] = {u"レセプト項目の記入へ",
                                u"全患者表示及び再表示",
                                u"並び替え",
                                u"月一括印刷",
                                u"レセプト総括表印刷",
                                u"更新",
                                u"抽出",
                                u"削除",
                                u"閉じる",
                                u"国保・後期の集計表",
                                u"療養費支給申請総括票Ⅰ・Ⅱ",
                                u"往療行程の印刷",
                                u"同意期限一ヶ月以内表示",
                                u"人体図の印刷",
                                u"同意一ｹ月以内の抽出"};
  openList();
  const auto menus = m_list->menuBar()->actions();
  ASSERT_EQ(menus.size(), 1);
  EXPECT_EQ(menus[0]->text(), qs(u"メニュー(&M)"));
  const auto entries = menus[0]->menu()->actions();
  ASSERT_EQ(entries.size(), qsizetype(std::size(captions)));
  for (int i = 0; i < entries.size(); ++i) EXPECT_EQ(entries[i]->text(), qs(captions[i]));
  EXPECT_EQ(entries[0]->objectName(), qs(u"fm_1"));
}

TEST_F(ClaimListCommands, TheRoomsOpenByTheirNames) {
  openList();
  const std::pair<const char16_t*, const char16_t*> rooms[] = {{u"Command4", u"年月"},
                                                               {u"Command5", u"施術録"},
                                                               {u"Command8", u"レセプト一覧表2"},
                                                               {u"Command9", u"総括表700_1"},
                                                               {u"Command10", u"往療行程の印刷"},
                                                               {u"Command11", u"同意期限一ヶ月"},
                                                               {u"Command12", u"jintaizu"},
                                                               {u"fm_14", u"抽出6"}};
  for (const auto& [command, room] : rooms) {
    press(command);
    EXPECT_EQ(m_navigator.shows.last(), qs(room));
  }
}

TEST_F(ClaimListCommands, ARowIsHeardCellByCell) {
  addClaim({{u"申請年月", u"令和6年10月"}, {u"氏名", u"見本 太郎"}});
  addClaim({{u"申請年月", u"令和6年11月"}, {u"氏名", u"例示 花子"}});
  openList();
  activate();
  m_list->focusOn(qs(u"DBGrid1"));
  const QString separator(voice::kSpeechSeparator);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(m_channel.lastSaid(), qs(u"申請年月") + separator + qs(u"令和6年10月"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  EXPECT_EQ(m_channel.lastSaid(), qs(u"氏名") + separator + qs(u"見本 太郎"));
}

TEST_F(ClaimListCommands, TheRecordKeysSayWhereTheyLedTo) {
  addClaim({{u"申請年月", u"令和6年9月"}, {u"氏名", u"見本 太郎"}});
  addClaim({{u"申請年月", u"令和6年10月"}, {u"氏名", u"架空 次郎"}});
  addClaim({{u"申請年月", u"令和6年11月"}, {u"氏名", u"例示 花子"}});
  openList();
  activate();
  const QString separator(voice::kSpeechSeparator);
  const auto said = [&](const char16_t* month, const char16_t* name) {
    return QStringList({qs(u"申請年月"), qs(month), qs(u"氏名"), qs(name)}).join(separator);
  };
  QTest::keyClick(m_list.get(), Qt::Key_F4);
  EXPECT_EQ(m_channel.lastSaid(), said(u"令和6年9月", u"見本 太郎"));
  QTest::keyClick(m_list.get(), Qt::Key_F2);
  EXPECT_EQ(m_channel.lastSaid(), said(u"令和6年10月", u"架空 次郎"));
  QTest::keyClick(m_list.get(), Qt::Key_F3);
  EXPECT_EQ(m_channel.lastSaid(), said(u"令和6年9月", u"見本 太郎"));
  QTest::keyClick(m_list.get(), Qt::Key_F1);
  EXPECT_EQ(m_channel.lastSaid(), said(u"令和6年11月", u"例示 花子"));
}

}  // namespace
}  // namespace claims
