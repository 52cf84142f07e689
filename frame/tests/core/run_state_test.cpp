#include "frame/core/run_state.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <map>
#include <set>

#include "frame/core/prefecture.h"
#include "frame/tests/profile_table.h"
#include "platform/text/whole_file.h"

using namespace frame;

namespace {

RunState loaded(const SettingsSlots& settings) {
  RunState run;
  loadRun(settings, QStringLiteral("/opt/daicho"), run);
  return run;
}

/// A fresh folder's settings with a mark in every slot that is neither a marker nor the counter.
SettingsSlots marked() {
  SettingsSlots settings = freshSettings();
  for (int i = 3; i < SettingsSlots::kFileFields; ++i)
    if (i != slot::kMarkerCheckBox && i != slot::kMarkerTextBox && i != slot::kMarkerProfile)
      settings[i] = QStringLiteral("値%1").arg(i);
  return settings;
}

}  // namespace

TEST(LoadRun, TheCounterIsRaisedAndABlankOneIsZero) {
  const std::pair<const char*, int> rows[] = {{"", 0}, {"0", 1}, {"9", 10}, {"41.9", 42}, {"x", 1}};
  for (const auto& [stored, counter] : rows) {
    SettingsSlots settings = freshSettings();
    settings[slot::kRunCounter] = QString::fromLatin1(stored);
    const RunState run = loaded(settings);
    EXPECT_EQ(run.runCounter, counter);
    EXPECT_EQ(run.settings[slot::kRunCounter], QString::number(counter));
  }
}

TEST(LoadRun, BlankPathsFallBackToTheProgramFolder) {
  const RunState run = loaded(freshSettings());
  const std::pair<int, const char16_t*> rows[] = {{0, u"/opt/daicho/臨床QV2000N.mdb"},
                                                  {1, u"/opt/daicho/予約2000.mdb"},
                                                  {2, u"/opt/daicho/保険申請2000_1.mdb"},
                                                  {3, u"/opt/daicho/Keiraku2000.mdb"},
                                                  {4, u"/opt/daicho/CLmoji2000.mdb"},
                                                  {5, u"/opt/daicho/CL2moji2000.mdb"},
                                                  {6, u"/opt/daicho/カルテ2データ2000.mdb"},
                                                  {7, u""},
                                                  {8, u""},
                                                  {9, u"治療台帳"},
                                                  {11, u"/opt/daicho/同意医師2000.mdb"},
                                                  {12, u"/opt/daicho/保険者2000.mdb"},
                                                  {13, u"/opt/daicho/料金設定2000.mdb"},
                                                  {14, u"/opt/daicho/保険申請2000_2.mdb"},
                                                  {15, u"/opt/daicho/GDATA"}};
  for (const auto& [entry, path] : rows)
    EXPECT_EQ(run.folders[static_cast<size_t>(entry)].toStdString(), QString::fromUtf16(path).toStdString())
        << entry;
}

TEST(LoadRun, FilledPathsComeFromTheirSlots) {
  const RunState run = loaded(marked());
  const std::pair<int, int> rows[] = {{0, 3},   {1, 4},   {2, 5},   {3, 6},  {4, 7},   {5, 8},
                                      {6, 9},   {7, 10},  {8, 11},  {9, 12}, {10, 13}, {11, 53},
                                      {12, 54}, {13, 55}, {14, 73}, {15, 14}};
  for (const auto& [entry, slot] : rows)
    EXPECT_EQ(run.folders[static_cast<size_t>(entry)], QStringLiteral("値%1").arg(slot)) << entry;
}

TEST(LoadRun, TwoStaleLicenceNumbersAreClearedAndNoOthers) {
  SettingsSlots settings = freshSettings();
  settings[18] = QStringLiteral("98ME");
  settings[19] = QStringLiteral("0");
  settings[20] = QStringLiteral("0");
  const RunState run = loaded(settings);
  EXPECT_EQ(run.settings[18], QString(""));
  EXPECT_EQ(run.settings[19], QString(""));
  EXPECT_EQ(run.settings[20], QStringLiteral("0"));
  settings[18] = QStringLiteral("0");
  settings[19] = QStringLiteral("98ME");
  EXPECT_EQ(loaded(settings).settings[18], QStringLiteral("0"));
  EXPECT_EQ(loaded(settings).settings[19], QStringLiteral("98ME"));
}

TEST(LoadRun, TokyoSubmissionHasADefaultAndAichiHasNone) {
  SettingsSlots settings = freshSettings();
  settings[slot::kAichi] = QString();
  settings[slot::kTokyo] = QString();
  EXPECT_EQ(loaded(settings).tokyoSubmission, QStringLiteral("6"));
  EXPECT_EQ(loaded(settings).aichiSubmission, QString());
  settings[slot::kTokyo] = QStringLiteral("5");
  EXPECT_EQ(loaded(settings).tokyoSubmission, QStringLiteral("5"));
}

TEST(RebuildSettings, EverySlotComesBackFromTheRunWideValues) {
  const SettingsSlots settings = marked();
  const SettingsSlots rebuilt = rebuildSettings(loaded(settings), SettingsWriter::Other);
  for (int i = 0; i < SettingsSlots::kFileFields; ++i) {
    if (i != slot::kRunCounter) {
      EXPECT_EQ(rebuilt[i], settings[i]) << i;
    }
  }
  EXPECT_EQ(rebuilt[slot::kRunCounter], QStringLiteral("1"));
}

TEST(RebuildSettings, WarningAndMarkersAreAlwaysRewritten) {
  RunState run = loaded(SettingsSlots());
  const SettingsSlots rebuilt = rebuildSettings(run, SettingsWriter::Other);
  EXPECT_EQ(rebuilt[0].toStdString(),
            "このデータは知識が無い場合は、書き換えないで下さい。大切な設定データです。");
  EXPECT_EQ(rebuilt[2].toStdString(), "qvchkfolders.ini");
  EXPECT_EQ(rebuilt[15].toStdString(), "qvchkbox.ini");
  EXPECT_EQ(rebuilt[21].toStdString(), "txtbox.ini");
  EXPECT_EQ(rebuilt[28].toStdString(), "touroku.ini");
}

TEST(RebuildSettings, WritersDifferInTheirOneSlot) {
  const RunState run = loaded(marked());
  for (const SettingsWriter writer : {SettingsWriter::Folders, SettingsWriter::Profile,
                                      SettingsWriter::ProgramEnd, SettingsWriter::Other}) {
    const SettingsSlots rebuilt = rebuildSettings(run, writer);
    EXPECT_EQ(rebuilt[27], writer == SettingsWriter::Folders ? QString("") : QStringLiteral("値27"));
    const bool page = writer == SettingsWriter::Profile || writer == SettingsWriter::ProgramEnd;
    EXPECT_EQ(rebuilt[13] == QStringLiteral("値13"), !page);
    EXPECT_EQ(rebuilt[13].startsWith(QStringLiteral("https://")), page);
  }
}

TEST(RebuildSettings, ChangedRunWideValuesReachTheirSlots) {
  RunState run = loaded(marked());
  run.aichiSubmission = QStringLiteral("3");
  run.tokyoSubmission = QStringLiteral("5");
  run.profile[29] = QStringLiteral("見本　太郎");
  run.folders[14] = QStringLiteral("/share/b.mdb");
  run.settings[slot::kTopics] = QStringLiteral("15");
  const SettingsSlots rebuilt = rebuildSettings(run, SettingsWriter::Other);
  EXPECT_EQ(rebuilt[17], QStringLiteral("3"));
  EXPECT_EQ(rebuilt[89], QStringLiteral("5"));
  EXPECT_EQ(rebuilt[29], QStringLiteral("見本　太郎"));
  EXPECT_EQ(rebuilt[73], QStringLiteral("/share/b.mdb"));
  EXPECT_EQ(rebuilt[88], QStringLiteral("15"));
}

class SavedRun : public testing::Test {
 protected:
  QTemporaryDir folder;
  RunState run;
  QString path() const { return settingsPath(folder.path()); }
};

TEST_F(SavedRun, RunsCountUpFromFileToFile) {
  ASSERT_TRUE(writeSettingsFile(path(), freshSettings()));
  for (int n = 1; n <= 3; ++n) {
    ASSERT_TRUE(readRun(folder.path(), run));
    EXPECT_EQ(run.runCounter, n);
    ASSERT_TRUE(saveRun(run, SettingsWriter::ProgramEnd));
  }
}

TEST_F(SavedRun, AStartWithoutTheFileIsAFaultThatNamesIt) {
  const auto read = readRun(folder.path(), run);
  ASSERT_FALSE(read);
  EXPECT_TRUE(read.fault().message.contains(path()));
}

TEST_F(SavedRun, ShortFileIsLeftAtTheEndAndCopiedBeforeASave) {
  ASSERT_TRUE(text::writeWholeFile(path(), "\"w\",\"3\""));
  ASSERT_TRUE(readRun(folder.path(), run));
  ASSERT_TRUE(saveRun(run, SettingsWriter::ProgramEnd));
  EXPECT_EQ(*text::readWholeFile(path()), "\"w\",\"3\"");
  ASSERT_TRUE(saveRun(run, SettingsWriter::Profile));
  EXPECT_EQ(*text::readWholeFile(path() + ".old"), "\"w\",\"3\"");
  EXPECT_TRUE(readSettingsFile(path())->readWhole);
  ASSERT_TRUE(saveRun(run, SettingsWriter::ProgramEnd));
  EXPECT_FALSE(QFile::exists(path() + ".old2"));
}

TEST_F(SavedRun, SavingFoldersClearsTheApplicantsNameForGood) {
  SettingsSlots settings = freshSettings();
  settings[27] = QStringLiteral("1");
  ASSERT_TRUE(writeSettingsFile(path(), settings));
  ASSERT_TRUE(readRun(folder.path(), run));
  ASSERT_TRUE(saveRun(run, SettingsWriter::Folders));
  ASSERT_TRUE(saveRun(run, SettingsWriter::ProgramEnd));
  EXPECT_EQ((*readSettingsFile(path()))[27], QString(""));
}

TEST_F(SavedRun, ThePrefectureComesFromTheInstallationRecord) {
  ASSERT_TRUE(writeSettingsFile(path(), freshSettings()));
  const std::pair<const char*, const char*> rows[] = {{"13\n", "13"}, {" 7 \r\n", "07"}, {"２３", "23"},
                                                      {"", ""},       {"abc", ""},       {"123", ""}};
  for (const auto& [record, code] : rows) {
    ASSERT_TRUE(text::writeWholeFile(folder.filePath("prefecture.txt"), record));
    ASSERT_TRUE(readRun(folder.path(), run));
    EXPECT_EQ(run.prefectureCode.toStdString(), code);
  }
}

TEST(Prefecture, EditionsAreInNationalOrder) {
  EXPECT_EQ(prefectureEdition("01"), QStringLiteral("北海道版"));
  EXPECT_EQ(prefectureEdition("13"), QStringLiteral("東京都版"));
  EXPECT_EQ(prefectureEdition("23"), QStringLiteral("愛知県版"));
  EXPECT_EQ(prefectureEdition("27"), QStringLiteral("大阪府版"));
  EXPECT_EQ(prefectureEdition("47"), QStringLiteral("沖縄県版"));
  for (const char* code : {"", "00", "48", "1", "013", "+1", "aa"})
    EXPECT_FALSE(prefectureEdition(code)) << code;
}

TEST(ProfileFields, CoverTheirSlotsOnce) {
  std::set<int> numbers;
  for (const ProfileField& field : profileFields())
    EXPECT_TRUE(numbers.insert(field.slot).second) << field.slot;
  std::set<int> expected = {17, 27, 89};
  for (int i = 29; i <= 52; ++i) expected.insert(i);
  for (int i = 56; i <= 67; ++i) expected.insert(i);
  for (int i = 74; i <= 84; ++i) expected.insert(i);
  expected.insert({86, 87});
  EXPECT_EQ(numbers, expected);
}

TEST(ProfileFields, AreCopiedIntoTheirClaimColumns) {
  std::map<int, QString> columns;
  for (const ProfileField& field : profileFields())
    columns[field.slot] = field.claimColumn ? field.claimColumn->text() : QString();
  for (const test::ProfileRow& row : test::kProfileTable)
    EXPECT_EQ(columns[row.slot].toStdString(), row.claimColumn.toStdString()) << row.slot;
  for (const int chosen : {17, 63, 89}) EXPECT_EQ(columns[chosen].toStdString(), "") << chosen;
}

// The profile's own slots are held by the screen that shows and stores them.
TEST(SettingsSlots, NamesHaveTheirPlacesInTheFile) {
  const std::pair<int, slot::Slot> rows[] = {{0, slot::kWarning},
                                             {1, slot::kRunCounter},
                                             {2, slot::kMarkerFolders},
                                             {3, slot::kPatientsPath},
                                             {4, slot::kAppointmentsPath},
                                             {5, slot::kClaims1Path},
                                             {6, slot::kAcupointsPath},
                                             {7, slot::kPhrases1Path},
                                             {8, slot::kPhrases2Path},
                                             {9, slot::kVisitsPath},
                                             {10, slot::kSpareFolder7},
                                             {11, slot::kSpareFolder8},
                                             {12, slot::kSpareFolder9},
                                             {13, slot::kUpdatePage},
                                             {14, slot::kPicturesPath},
                                             {15, slot::kMarkerCheckBox},
                                             {16, slot::kPrintLicence},
                                             {17, slot::kAichi},
                                             {18, slot::kLicenceHari},
                                             {19, slot::kLicenceKyu},
                                             {20, slot::kLicenceMassage},
                                             {21, slot::kMarkerTextBox},
                                             {22, slot::kCaptionText1},
                                             {23, slot::kCaptionText2},
                                             {24, slot::kCaptionText3},
                                             {25, slot::kCaptionSymptom},
                                             {26, slot::kCaptionTreatment},
                                             {28, slot::kMarkerProfile},
                                             {53, slot::kDoctorsPath},
                                             {54, slot::kInsurersPath},
                                             {55, slot::kFeesPath},
                                             {63, slot::kMassageToo},
                                             {68, slot::kSummaryCondition1},
                                             {69, slot::kSummaryCondition2},
                                             {70, slot::kSummaryCondition3},
                                             {71, slot::kSpare71},
                                             {72, slot::kSpare72},
                                             {73, slot::kClaims2Path},
                                             {85, slot::kSpare85},
                                             {88, slot::kTopics},
                                             {89, slot::kTokyo}};
  for (const auto& [place, name] : rows) EXPECT_EQ(int(name), place);
}
