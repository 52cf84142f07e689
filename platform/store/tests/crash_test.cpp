#include <sys/wait.h>
#include <unistd.h>

#include <QSet>
#include <functional>

#include "platform/store/bulk.h"
#include "platform/store/integrity.h"
#include "platform/store/pair.h"
#include "platform/store/tests/cut_vfs.h"
#include "platform/store/tests/store_fixture.h"

namespace store {
namespace {

const QString kFirst = QStringLiteral("保険申請2000_1.mdb");
const QString kSecond = QStringLiteral("保険申請2000_2.mdb");
const QString kTable = QStringLiteral("保険申請");
const QString kNote1 = QStringLiteral("備考");
const QString kNote2 = QStringLiteral("memo dummy1");

/// How a child ended: cut off before or after it had told the user that the store is done, or not at all.
enum class Ended { BeforeTold, AfterTold, Whole };

class CrashTest : public StoreTest {
 protected:
  void SetUp() override {
    for (const auto& [file, note] : {std::pair(kFirst, kNote1), std::pair(kSecond, kNote2)}) {
      fresh(file);
      QList<QHash<QString, Value>> rows;
      for (int row = 0; row < 20; ++row) rows += {{note, QStringLiteral("old")}};
      ASSERT_TRUE(addRows(path(file), kTable, rows).ok());
      ASSERT_TRUE(QFile::copy(path(file), path(file + QStringLiteral(".start"))));
    }
  }
  void startAnew() const {
    for (const QString& name : QDir(m_folder.path()).entryList(QDir::Files))
      if (!name.endsWith(u".start")) QFile::remove(path(name));
    for (const QString& file : {kFirst, kSecond})
      ASSERT_TRUE(QFile::copy(path(file + QStringLiteral(".start")), path(file)));
  }
  /// Stores pair 7 with a new stamp, long enough for several pages, in a child that ends at the cut.
  Ended storeInAChild(int operations, Cut cut, unsigned lot,
                      const std::function<Done(PairStore&)>& work) const {
    int told[2];
    EXPECT_EQ(::pipe(told), 0);
    const pid_t child = ::fork();
    if (child == 0) {
      cutAfter(operations, cut, lot);
      auto pair = PairStore::open(path(kFirst), path(kSecond), kTable);
      if (!pair || !work(**pair)) ::_exit(3);
      if (::write(told[1], "x", 1) != 1) ::_exit(3);
      ::_exit(0);
    }
    ::close(told[1]);
    int status = 0;
    ::waitpid(child, &status, 0);
    char letter = 0;
    const bool wasTold = ::read(told[0], &letter, 1) == 1;
    ::close(told[0]);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_TRUE(WEXITSTATUS(status) == 0 || WEXITSTATUS(status) == kCutStatus) << WEXITSTATUS(status);
    return WEXITSTATUS(status) == 0 ? Ended::Whole : wasTold ? Ended::AfterTold : Ended::BeforeTold;
  }
  /// Opens the files as the next start does and gives both stamps, which must be one.
  QString stampAfterwards(const QString& where) const {
    auto pair = PairStore::open(path(kFirst), path(kSecond), kTable);
    if (!pair) {
      ADD_FAILURE() << where.toStdString() << ": " << pair.fault().message.toStdString();
      return {};
    }
    const auto halves = (*pair)->read(7);
    const QString first = halves->first.value(kNote1), second = halves->second.value(kNote2).left(3);
    EXPECT_EQ(first, second) << "torn pair, " << where.toStdString();
    for (const QString& file : {kFirst, kSecond}) {
      const Done whole = checkIntegrity(path(file));
      EXPECT_TRUE(whole.ok()) << where.toStdString() << ": "
                              << (whole ? "" : whole.fault().message.toStdString());
    }
    return first;
  }
  void expectNoTornPair(Cut cut, unsigned lots) {
    const auto store = [](PairStore& pair) {
      return pair.update(7, {{kNote1, QStringLiteral("new")}},
                         {{kNote2, QStringLiteral("new") + QString(9000, u'長')}});
    };
    int cuts = 0, stored = 0;
    for (int operations = 0;; ++operations) {
      bool whole = false;
      for (unsigned lot = 0; lot < lots && !whole; ++lot) {
        startAnew();
        const Ended ended = storeInAChild(operations, cut, lot, store);
        const QString where = QStringLiteral("operation %1, lot %2").arg(operations).arg(lot);
        const QString stamp = stampAfterwards(where);
        EXPECT_TRUE(stamp == u"old" || stamp == u"new") << where.toStdString();
        EXPECT_TRUE(ended == Ended::BeforeTold || stamp == u"new")
            << "a store that was told is lost, " << where.toStdString();
        whole = ended == Ended::Whole;
        cuts += !whole;
        stored += stamp == u"new";
        if (HasFailure()) return;
      }
      if (whole) break;
    }
    EXPECT_GT(cuts, 20);
    EXPECT_GT(stored, 0);
    EXPECT_LT(stored, cuts) << "some cuts came before the commit";
  }
};

TEST_F(CrashTest, NoKillOfTheProgramTearsAPair) { expectNoTornPair(Cut::Kill, 1); }

TEST_F(CrashTest, NoPowerCutTearsAPair) { expectNoTornPair(Cut::Power, 4); }

TEST_F(CrashTest, AMonthsRecomputeIsWholeOrNotAtAll) {
  const auto recompute = [](PairStore& pair) {
    return pair.together([&]() -> Done {
      for (qint64 id = 1; id <= 20; ++id)
        if (const Done done =
                pair.update(id, {{kNote1, QStringLiteral("new")}}, {{kNote2, QStringLiteral("new")}});
            !done)
          return done;
      return {};
    });
  };
  for (int operations = 0;; operations += 3) {
    startAnew();
    const Ended ended = storeInAChild(operations, Cut::Power, static_cast<unsigned>(operations), recompute);
    auto pair = PairStore::open(path(kFirst), path(kSecond), kTable);
    ASSERT_TRUE(pair.ok());
    QSet<QString> stamps;
    for (qint64 id = 1; id <= 20; ++id) {
      const auto halves = (*pair)->read(id);
      stamps += halves->first.value(kNote1);
      stamps += halves->second.value(kNote2);
    }
    ASSERT_EQ(stamps.size(), 1) << operations;
    if (ended == Ended::Whole) break;
  }
}

// Two computers on one shared folder.
TEST_F(CrashTest, ProgramsThatAddPairsAtOnceNeverShareAnId) {
  constexpr int kEach = 25;
  pid_t children[2];
  for (pid_t& child : children) {
    child = ::fork();
    if (child != 0) continue;
    auto pair = PairStore::open(path(kFirst), path(kSecond), kTable);
    bool done = pair.ok();
    for (int row = 0; done && row < kEach; ++row)
      done =
          (*pair)->add({{kNote1, QString::number(::getpid())}}, {{kNote2, QString::number(::getpid())}}).ok();
    ::_exit(done ? 0 : 3);
  }
  for (const pid_t child : children) {
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  }
  auto pair = PairStore::open(path(kFirst), path(kSecond), kTable);
  ASSERT_TRUE(pair.ok());
  EXPECT_EQ(openSet(kFirst, kTable).recordCount(), 20 + 2 * kEach);
  for (qint64 id = 21; id <= 20 + 2 * kEach; ++id) {
    const auto halves = (*pair)->read(id);
    ASSERT_FALSE(halves->first.isEmpty()) << id;
    EXPECT_EQ(halves->first.value(kNote1), halves->second.value(kNote2)) << id;
  }
}

}  // namespace
}  // namespace store
