#pragma once

#include <sqlite3.h>

#include <QApplication>

#include "frame/core/routes.h"
#include "frame/tests/screens/screen_fixture.h"
#include "office/screens/office_screens.h"
#include "platform/screen/testing/screen_probe.h"
#include "platform/store/bulk.h"

namespace office::test {

using namespace Qt::Literals::StringLiterals;

/// The appointment book over files of its own, with stand-ins for the screens around it. Today is Saturday,
/// 15 June 2024, 9:05.
class BookingFixture : public frame::test::ScreenFixture {
 protected:
  using Columns = QHash<QString, QString>;

  BookingFixture() {
    clock = text::FixedClock(QDate(2024, 6, 15), QTime(9, 5));
    registerScreens(registry, run);
    for (const QString& name : {u"選択3"_s, u"治療台帳4"_s, u"集計"_s}) standIn(name);
  }

  void SetUp() override {
    ScreenFixture::SetUp();
    makeFile(kBookings);
    makeFile(kPatients);
  }

  void addBooking(const Columns& columns) {
    ASSERT_TRUE(store::addRows(path(kBookings), u"予約"_s, {columns}));
  }
  /// A finished booking of the day, "2024/6/15".
  void book(const QString& day, const QString& time, const QString& name) {
    const QStringList parts = day.split(u'/');
    addBooking({{u"予約年"_s, parts[0]},
                {u"予約月"_s, parts[1]},
                {u"予約日"_s, parts[2]},
                {u"予約時間"_s, time},
                {u"予約患者"_s, name},
                {u"登録日時"_s, u"令和6年6月1日 9:0"_s},
                {u"テキスト1"_s, u"20240601001"_s}});
  }
  void addPatient(const Columns& columns) {
    ASSERT_TRUE(store::addRows(path(kPatients), u"臨床QV"_s, {columns}));
  }

  store::RecordSet table() const {
    return std::move(
        store::RecordSet::open(store::Database::open(path(kBookings)).value(), u"予約"_s).value());
  }
  /// All values of a column in the file, in ID order.
  QStringList stored(const QString& column) const {
    const store::RecordSet rows = table();
    QStringList values;
    for (int i = 0; i < rows.recordCount(); ++i) values << rows.valueAt(i, column);
    return values;
  }
  /// What another computer does to the book at the same time.
  void elsewhere(const char* statement) const {
    sqlite3* file = nullptr;
    ASSERT_EQ(sqlite3_open(path(kBookings).toUtf8().constData(), &file), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(file, statement, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(file);
    sqlite3_close(file);
  }

  /// Shows the screen and lets it do what it does once it has the keyboard.
  screen::Screen& open(const QString& name, const screen::Request& request = {}) {
    screen::Screen* screen = navigator.show(name, request);
    EXPECT_NE(screen, nullptr) << name.toStdString();
    activate(*screen);
    return *screen;
  }
  static routes::Booking storedBooking(qint64 id) { return {.what = routes::Booking::Stored{id}}; }
  static frame::Patient patient(const QString& name, const QString& number = {}, const QString& serial = {}) {
    frame::Patient patient;
    patient.name = name;
    patient.number = number;
    patient.serial = serial;
    return patient;
  }
  static routes::Booking newBookingOf(const frame::Patient& patient) {
    return {.what = routes::Booking::NewBooking{patient}};
  }
  /// The booked person that was handed to the patient screen last.
  std::optional<routes::PatientRegister::Booked> handedOver() const {
    const auto patient = routeTo<routes::PatientRegister>();
    const auto* booked = patient ? std::get_if<routes::PatientRegister::Booked>(&patient->who) : nullptr;
    return booked ? std::optional(*booked) : std::nullopt;
  }
  static void activate(screen::Screen& screen) {
    QApplication::setActiveWindow(&screen);
    settle();
  }
  /// The screen that a command led to, with the keyboard.
  screen::Screen& led(const QString& name) {
    screen::Screen* screen = navigator.loaded(name);
    EXPECT_NE(screen, nullptr) << name.toStdString();
    activate(*screen);
    return *screen;
  }

  /// The messages since the last call.
  QStringList takeMessages() {
    const QStringList texts = messages.texts();
    messages.forget();
    return texts;
  }
  /// The column of the rows on view, top to bottom.
  static QStringList listed(const screen::Screen& screen, const QString& column = u"予約患者"_s) {
    QStringList values;
    const store::RecordSet& rows = screen.source().rows();
    for (int row = 0; row < rows.recordCount(); ++row) values << rows.valueAt(row, column);
    return values;
  }
  /// Parts as they are spoken in one sentence.
  static QString spoken(const QStringList& parts) { return parts.join(voice::kSpeechSeparator); }

  /// Types into the lists of a day.
  static void type(screen::Screen& screen, const QString& year, const QString& month, const QString& day) {
    screen.setText(u"Combo1"_s, year);
    screen.setText(u"Combo2"_s, month);
    screen.setText(u"Combo3"_s, day);
  }
  static QStringList dayOf(const screen::Screen& screen) {
    return {screen.text(u"Combo1"_s), screen.text(u"Combo2"_s), screen.text(u"Combo3"_s)};
  }

  const QString kBookings = u"予約2000.mdb"_s, kPatients = u"臨床QV2000N.mdb"_s;
  const QString kNotFound = u"該当がありません。"_s;
  const QString kNoRows = u"検索データが０件です。「全表示に戻す」をクリックして下さい。"_s;
  const QString kNoDate = u"年、月、日を数字で入力して下さい。"_s;
};

}  // namespace office::test
