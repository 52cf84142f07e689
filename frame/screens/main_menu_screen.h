#pragma once

#include "frame/core/run_state.h"
#include "frame/core/web_pages.h"
#include "platform/screen/screen.h"

namespace frame {

/// The main menu: its commands are the table of contents of the program.
class MainMenuScreen : public screen::Screen {
 public:
  MainMenuScreen(screen::Services& services, RunState& run);

  void onLoad() override;
  void onActivate() override;
  bool onCloseBox() override;
  QStringList openingTexts() const override;

  // Screens that something is handed to.
  void openClaims();
  void openReceipts();
  void openBookings();
  void openTakings();
  void backUp();

  // Prefecture and association of the run.
  void changePrefecture();
  void chooseAichi();
  void chooseTokyo();

  // Help.
  void openManual();
  void openTextHelp();
  void openAssociationPage();
  void openProductPage();
  void openUpdatePage();
  void openTroublePage();

  void endProgram();

 private:
  void showSubmissions();
  void tellFault(const text::Done& done);
  void openBeside(const QString& fileName);
  void openPage(WebPage page);
  QString todayForReceipt() const;
  RunState& m_run;
  bool m_greets = false;  ///< this is the first load of the run
};

}  // namespace frame
