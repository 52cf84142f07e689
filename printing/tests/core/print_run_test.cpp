#include "printing/contract/print_run.h"

#include <gtest/gtest.h>

#include <QDir>

#include "printing/tests/core/spy_engine.h"

namespace printing {
namespace {

using tests::SpyEngine;

struct Job {
  SpyEngine engine;
  PrintJob job;
  QStringList steps;

  Job() {
    job.prompt = [this] { return step("prompt"); };
    job.prepare = [this] { return step("prepare"); };
    job.window = 5;
    job.title = QStringLiteral("申請書鍼");
    job.chooseTemplate = [this](int page) {
      step("choose");
      return QStringLiteral("FORM_%1.PRP").arg(page);
    };
    job.fill = [this](ReportFields& fields, int page) {
      step("fill");
      fields.show(u"Name1", QStringLiteral("頁%1").arg(page));
    };
    job.cleanUp = [this] { step("clean"); };
  }
  bool step(const char* name) {
    steps << QString::fromUtf8(name);
    engine.calls << QString::fromUtf8(name);
    return true;
  }
};

TEST(PrintRun, PerformsTheStepsInTheirFixedOrder) {
  Job run;
  EXPECT_EQ(runPrint(run.engine, run.job), RunEnd::Printed);
  EXPECT_EQ(run.engine.calls,
            QStringList({"prompt", "prepare", "PR_GetPrinterDC", "PR_StartDC 5 7 申請書鍼 262144", "choose",
                         "PR_LoadReport 0 0 FORM_0.PRP", "fill", "PR_PlayReport", "PR_EndDoc", "clean"}));
  EXPECT_EQ(run.engine.itemCalls, QStringList({"-1 Name1", "Name1=頁0"}));
}

TEST(PrintRun, RefusedPromptReachesNothing) {
  Job run;
  run.job.prompt = [] { return false; };
  EXPECT_EQ(runPrint(run.engine, run.job), RunEnd::Cancelled);
  EXPECT_TRUE(run.engine.calls.isEmpty());
}

TEST(PrintRun, BreakStopsBeforeTheEngine) {
  Job run;
  run.job.prepare = [] { return false; };
  EXPECT_EQ(runPrint(run.engine, run.job), RunEnd::Broken);
  EXPECT_EQ(run.engine.calls, QStringList({"prompt"}));
}

TEST(PrintRun, StartAboveTenEndsSilentlyWithoutEndDoc) {
  Job run;
  run.engine.startResult = 11;
  EXPECT_EQ(runPrint(run.engine, run.job), RunEnd::NotStarted);
  EXPECT_EQ(run.engine.calls.last(), QStringLiteral("PR_StartDC 5 7 申請書鍼 262144"));
}

TEST(PrintRun, StartOfTenIsASuccess) {
  Job run;
  run.engine.startResult = 10;
  EXPECT_EQ(runPrint(run.engine, run.job), RunEnd::Printed);
}

TEST(PrintRun, MissingTemplateEndsWithAbortDoc) {
  Job run;
  run.engine.missingTemplates << QStringLiteral("FORM_0.PRP");
  EXPECT_EQ(runPrint(run.engine, run.job), RunEnd::NotLoaded);
  EXPECT_EQ(run.engine.calls.last(), QStringLiteral("PR_AbortDoc"));
  EXPECT_FALSE(run.steps.contains(QStringLiteral("fill")));
  EXPECT_FALSE(run.steps.contains(QStringLiteral("clean")));
}

TEST(PrintRun, ADocumentThatThePrinterDoesNotTakeIsNotPrinted) {
  Job run;
  const text::Done refused = text::Fault{QStringLiteral("断り")};
  run.engine.documentResult = refused;
  EXPECT_EQ(runPrint(run.engine, run.job), RunEnd::NotTaken);
  EXPECT_EQ(run.engine.calls.last(), QStringLiteral("PR_EndDoc"));
  EXPECT_FALSE(run.steps.contains(QStringLiteral("clean"))) << "the printing screen stays open";
}

TEST(PrintRun, ItemsOnlyHidesTheFourFamiliesInTheirOrderBeforeTheFill) {
  Job run;
  run.job.itemsOnly = true;
  run.job.afterFrame = [](ReportFields& fields, int) { fields.hide(u"GG4"); };
  ASSERT_EQ(runPrint(run.engine, run.job), RunEnd::Printed);
  const QStringList& calls = run.engine.itemCalls;
  ASSERT_EQ(calls.size(), 4000 + 1 + 2);
  for (int n = 1; n <= 1000; ++n) {
    const int at = (n - 1) * 4;
    EXPECT_EQ(calls.mid(at, 4),
              QStringList({QStringLiteral("0 waku_%1").arg(n), QStringLiteral("0 Box%1").arg(n),
                           QStringLiteral("0 Line%1").arg(n), QStringLiteral("0 Text%1").arg(n)}));
  }
  EXPECT_EQ(calls.mid(4000), QStringList({"0 GG4", "-1 Name1", "Name1=頁0"}));
}

TEST(PrintRun, ManyPagesLoadFillAndPlayEachAndEndOnce) {
  Job run;
  run.job.pages = 2;
  EXPECT_EQ(runPrint(run.engine, run.job), RunEnd::Printed);
  EXPECT_EQ(run.engine.calls.mid(4),
            QStringList({"choose", "PR_LoadReport 0 0 FORM_0.PRP", "fill", "PR_PlayReport", "choose",
                         "PR_LoadReport 0 0 FORM_1.PRP", "fill", "PR_PlayReport", "PR_EndDoc", "clean"}));
}

TEST(PrintRun, WorksInTheProgramFolder) {
  Job run;
  const QString before = QDir::currentPath();
  run.job.programFolder = QDir::tempPath();
  run.job.prepare = [&] {
    EXPECT_EQ(QDir::current(), QDir(QDir::tempPath()));
    return true;
  };
  ASSERT_EQ(runPrint(run.engine, run.job), RunEnd::Printed);
  QDir::setCurrent(before);
}

}  // namespace
}  // namespace printing
