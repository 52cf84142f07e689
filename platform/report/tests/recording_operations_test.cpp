#include "platform/report/recording_operations.h"

#include <gtest/gtest.h>

namespace report {
namespace {

TEST(Recording, keepsCallsInOrderWithTheirArguments) {
  RecordingOperations recording;
  recording.PR_StartDC(7, recording.PR_GetPrinterDC(), QStringLiteral("申請書鍼"), kStartFlags);
  recording.PR_LoadReport(0, 0, "HARI_900.PRP");
  recording.PR_RepSetVisible("Name8", kShown);
  recording.PR_RepSetText("Name8", QStringLiteral("見本"));
  recording.PR_Output(1.5f, -2.0f, "x");
  recording.PR_EndDoc();
  EXPECT_EQ(recording.names(), (QStringList{"PR_GetPrinterDC", "PR_StartDC", "PR_LoadReport",
                                            "PR_RepSetVisible", "PR_RepSetText", "PR_Output", "PR_EndDoc"}));
  EXPECT_EQ(recording.calls()[1].arguments,
            (QVariantList{quint64(7), qint64(1), QStringLiteral("申請書鍼"), 262144}));
  EXPECT_EQ(recording.calls()[5].arguments, (QVariantList{1.5f, -2.0f, "x"}));
}

TEST(Recording, knowsWhatPrints) {
  RecordingOperations recording;
  recording.PR_RepSetText("a", "not shown");
  recording.PR_RepSetVisible("b", kShown);
  recording.PR_RepSetText("b", "shown");
  EXPECT_TRUE(recording.printed("a").isNull());
  EXPECT_EQ(recording.printed("b"), "shown");
  recording.PR_RepSetVisible("b", kHidden);
  EXPECT_TRUE(recording.printed("b").isNull());
  recording.PR_LoadReport(0, 0, "next");
  EXPECT_TRUE(recording.items().isEmpty());
}

TEST(Recording, handsOnToAnEngine) {
  RecordingOperations inner, outer(&inner);
  inner.loadResult = 5;
  inner.startResult = 11;
  EXPECT_EQ(outer.PR_StartDC(0, 0, "t", 0), 11);
  EXPECT_EQ(outer.PR_LoadReport(0, 0, "x"), 5);
  outer.PR_RepSetTextAlign("Name1", 1);
  outer.PR_AbortDoc();
  EXPECT_EQ(inner.calls(), outer.calls());
}

}  // namespace
}  // namespace report
