#include "frame/screens/main_menu_screen.h"

#include <QDir>
#include <QFile>

#include "frame/core/backup_folder.h"
#include "frame/core/backup_generations.h"
#include "frame/core/prefecture.h"
#include "frame/core/routes.h"
#include "frame/core/routes_unbuilt.h"
#include "frame/screens/backup_progress.h"
#include "frame/screens/main_menu_rows.h"
#include "frame/screens/settings_writer.h"
#include "platform/shell/desktop.h"
#include "platform/store/tables/claims.h"
#include "platform/text/utf16.h"

namespace frame {

using namespace Qt::Literals::StringLiterals;

namespace {

/// One association's two answers: the stored value, and the text when the tick is set or the menu shows
/// again. Kept: the activated menu writes マツサージ with a large ツ, the tick writes マッサージ.
struct Submission {
  const char16_t* value;
  const char16_t* whenTicked;
  const char16_t* whenShown;
};
constexpr Submission kAichiOn{u"3", u"愛知県鍼灸師会", u"愛知県鍼灸師会"};
constexpr Submission kAichiOff{u"4", u"愛知県鍼灸マッサージ師会", u"愛知県鍼灸マツサージ師会"};
constexpr Submission kTokyoOn{u"6", u"東京都鍼灸師会　会員外", u"東京都鍼灸師会　会員外"};
constexpr Submission kTokyoOff{u"5", u"東京都鍼灸師会", u"東京都鍼灸師会"};

}  // namespace

MainMenuScreen::MainMenuScreen(screen::Services& services, RunState& run)
    : Screen(menu::kDeclaration, services), m_run(run) {}

void MainMenuScreen::onLoad() {
  m_greets = !m_run.menuLoadedBefore;
  m_run.menuLoadedBefore = true;
  // The capability of the run is what the date test answers for a date of the era that came last.
  const bool supported = m_run.eraDates().platformDate(u"令和1年5月5日"_s).has_value();
  m_run.eraCapability = supported ? EraCapability::Supported : EraCapability::Unsupported;
  setShown(menu::kEraSupported, supported);
  setShown(menu::kEraUnsupported, !supported);
  showSubmissions();
  QDir::setCurrent(m_run.programFolder);
}

QStringList MainMenuScreen::openingTexts() const {
  if (!m_greets) return {};
  const bool supported = m_run.eraCapability == EraCapability::Supported;
  return {u"治療台帳を起動しました"_s, caption(menu::kVersion),
          caption(supported ? menu::kEraSupported : menu::kEraUnsupported)};
}

void MainMenuScreen::onActivate() { showSubmissions(); }

void MainMenuScreen::showSubmissions() {
  setText(menu::kPrefecture, m_run.prefectureCode);
  const Submission& aichi = m_run.aichiSubmission == u"3" ? kAichiOn : kAichiOff;
  setChecked(menu::kAichiTick, &aichi == &kAichiOn);
  setText(menu::kAichiText, text::utf16(aichi.whenShown));
  const Submission& tokyo = m_run.tokyoSubmission == u"5" ? kTokyoOff : kTokyoOn;
  setChecked(menu::kTokyoTick, &tokyo == &kTokyoOn);
  setText(menu::kTokyoText, text::utf16(tokyo.whenShown));
}

void MainMenuScreen::changePrefecture() {
  const QString typed = text(menu::kPrefecture);
  if (!typed.isEmpty()) {
    m_run.prefectureCode = twoDigitPrefecture(typed);
    setText(menu::kPrefecture, m_run.prefectureCode);
  }
  // Says the current prefecture, also if a blank field changed nothing.
  voice().speakText(caption(menu::kPrefecture) + voice::kSpeechSeparator + m_run.prefectureCode);
}

void MainMenuScreen::chooseAichi() {
  const Submission& chosen = checked(menu::kAichiTick) ? kAichiOn : kAichiOff;
  m_run.aichiSubmission = text::utf16(chosen.value);
  setText(menu::kAichiText, text::utf16(chosen.whenTicked));
}

void MainMenuScreen::chooseTokyo() {
  const Submission& chosen = checked(menu::kTokyoTick) ? kTokyoOn : kTokyoOff;
  m_run.tokyoSubmission = text::utf16(chosen.value);
  setText(menu::kTokyoText, text::utf16(chosen.whenTicked));
}

void MainMenuScreen::openClaims() { navigator().show(routes::ClaimList{.order = claim::id + u" DESC"_s}); }

void MainMenuScreen::openReceipts() {
  navigator().show(routes::unbuilt::ReceiptChoice{.day = todayForReceipt()});
}

void MainMenuScreen::openBookings() {
  m_run.bookingsCaller = routes::MainMenu::screen;
  navigator().show(routes::TodaysBookings{.lastRow = true});
}

void MainMenuScreen::openTakings() { navigator().show(routes::Takings{.lastRow = true}); }

QString MainMenuScreen::todayForReceipt() const {
  const EraDates dates = m_run.eraDates();
  const QDate today = m_run.clock->today();
  // Kept: this place compares strictly with the last day of the old era.
  if (m_run.eraCapability == EraCapability::Unsupported && today > QDate(2019, 4, 30))
    return dates.todayEraPartsMenu().reiwaDate;
  return dates.formatEra(today);
}

void MainMenuScreen::backUp() {
  const QString folder = services().desktop->pickFolder(u"フォルダの選択"_s);
  if (folder.isEmpty()) return;
  if (const text::Done fit = checkBackupFolder(m_run, folder); !fit)
    return messages().tell(fit.fault().message);
  const BackupReport report = [&] {
    BackupProgress progress(voice(), backupSize(m_run));
    return backUpToFolder(m_run, folder, progress.watch());
  }();
  messages().tell(report.whole() ? u"データのバックアップが終わりました。"_s : report.shortfall());
}

void MainMenuScreen::tellFault(const text::Done& done) {
  if (!done) messages().tell(done.fault().message);
}

void MainMenuScreen::openBeside(const QString& fileName) {
  tellFault(services().desktop->openFile(QDir(m_run.programFolder).filePath(fileName)));
}

void MainMenuScreen::openManual() { openBeside(u"help.PDF"_s); }

// If the system has no viewer for text files the program reads the help out itself.
void MainMenuScreen::openTextHelp() {
  const QString path = QDir(m_run.programFolder).filePath(u"help.txt"_s);
  const text::Done done = services().desktop->openFile(path);
  if (!done && QFile::exists(path))
    navigator().show(routes::TextHelp{});
  else
    tellFault(done);
}

void MainMenuScreen::openPage(WebPage page) { tellFault(services().desktop->openWebPage(webAddress(page))); }

void MainMenuScreen::openAssociationPage() { openPage(WebPage::Association); }
void MainMenuScreen::openProductPage() { openPage(WebPage::Product); }
void MainMenuScreen::openUpdatePage() { openPage(WebPage::Update); }
void MainMenuScreen::openTroublePage() { openPage(WebPage::Trouble); }

void MainMenuScreen::endProgram() {
  // writeSettings has already reported any fault; quit regardless, with the settings of the last run.
  (void)writeSettings(*this, m_run, SettingsWriter::ProgramEnd);
  if (endsWithBackup(m_run)) backUpGenerations(m_run);
  navigator().quit();
}

// The close box ends the program like the button, so that the run's settings are never lost.
bool MainMenuScreen::onCloseBox() {
  endProgram();
  return false;
}

}  // namespace frame
