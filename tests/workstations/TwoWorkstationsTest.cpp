// Two processes on one database file, as two workstations: the embedded
// engine in SuperClassic mode locks across processes as a server does.
#include "OrderInvoicingFixture.h"
#include "TestDatabase.h"

#include <QProcess>
#include <QSqlQuery>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace {

// One run of the test workstation program; both runs are started first
// and let go together, so that their work overlaps.
class Workstation
{
public:
    explicit Workstation(const QStringList &arguments)
    {
        m_process.start(QStringLiteral(HAULIX_WORKSTATION_PATH), arguments);
    }

    bool ready()
    {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(30000))
                return false;
        }
        return m_process.readLine().trimmed() == "gotowy";
    }

    // Written at once: QProcess would hold the line back until the test
    // waits for this very process, and the two would run one after the
    // other.
    void go()
    {
        m_process.write("start\n");
        m_process.waitForBytesWritten(30000);
    }

    // The pairs of numbers the program printed, one per line.
    std::vector<std::pair<int, int>> results()
    {
        std::vector<std::pair<int, int>> pairs;
        if (!m_process.waitForFinished(120000)) {
            ADD_FAILURE() << "the workstation did not finish";
            return pairs;
        }
        const QByteArray errors = m_process.readAllStandardError();
        EXPECT_EQ(m_process.exitCode(), 0) << errors.toStdString();
        EXPECT_TRUE(errors.isEmpty()) << errors.toStdString();
        for (const QByteArray &line : m_process.readAllStandardOutput().split('\n')) {
            const QList<QByteArray> numbers = line.trimmed().split(' ');
            if (numbers.size() == 2)
                pairs.emplace_back(numbers[0].toInt(), numbers[1].toInt());
        }
        return pairs;
    }

private:
    QProcess m_process;
};

std::vector<std::pair<int, int>> runBoth(const QStringList &first, const QStringList &second)
{
    Workstation a(first);
    Workstation b(second);
    EXPECT_TRUE(a.ready());
    EXPECT_TRUE(b.ready());
    a.go();
    b.go();
    std::vector<std::pair<int, int>> all = a.results();
    const std::vector<std::pair<int, int>> more = b.results();
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

// The distinct first (or second) numbers of the pairs.
std::set<int> distinct(const std::vector<std::pair<int, int>> &pairs, bool second = false)
{
    std::set<int> numbers;
    for (const auto &[a, b] : pairs)
        numbers.insert(second ? b : a);
    return numbers;
}

} // namespace

TEST(TwoWorkstations, AddingAHundredOrdersEachGivesTwoHundredDistinctNumbers)
{
    TestDatabase db;
    const QString count = QStringLiteral("100");
    const auto saved = runBoth({QStringLiteral("orders"), db.path(), count, QStringLiteral("A")},
                               {QStringLiteral("orders"), db.path(), count, QStringLiteral("B")});
    ASSERT_EQ(saved.size(), 200u);
    EXPECT_EQ(distinct(saved).size(), 200u);
    EXPECT_EQ(distinct(saved, true).size(), 200u);
    int notAsSaved = 0;
    for (const auto &[key, number] : saved) {
        const QString stored = db.scalar(QStringLiteral("SELECT NUMER FROM ZLECENIA_PRZYCH "
                                                        "WHERE ID_ZLECENIA_PRZYCH=%1")
                                             .arg(key));
        if (stored.toInt() != number)
            ++notAsSaved;
    }
    EXPECT_EQ(notAsSaved, 0);
    // Each order followed the one inserted before it, whichever workstation
    // that was.
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT COUNT(*) FROM ZLECENIA_PRZYCH z WHERE NUMER <> "
                                       "(SELECT COUNT(*) FROM ZLECENIA_PRZYCH p WHERE "
                                       "p.ID_ZLECENIA_PRZYCH <= z.ID_ZLECENIA_PRZYCH)")),
              QStringLiteral("0"));
}

TEST(TwoWorkstations, PlacesOpenedAtTheSameTimeAreEachTheirOwnOrders)
{
    TestDatabase db;
    const QString count = QStringLiteral("1000");
    const auto opened
        = runBoth({QStringLiteral("places"), db.path(), count, QStringLiteral("100000")},
                  {QStringLiteral("places"), db.path(), count, QStringLiteral("200000")});
    ASSERT_EQ(opened.size(), 2000u);
    std::map<int, int> orderOfPlace;
    const QString sql = QStringLiteral("SELECT ID_MIEJSCA_ZLEC, ID_ZLECENIA, NAZWA1 FROM "
                                       "MIEJSCA_ZLEC");
    QSqlQuery query(db.connection().database());
    ASSERT_TRUE(query.exec(sql));
    // A place saved over by the other workstation names another order.
    int overwritten = 0;
    while (query.next()) {
        if (query.value(1).toString() != query.value(2).toString())
            ++overwritten;
        orderOfPlace[query.value(0).toInt()] = query.value(1).toInt();
    }
    EXPECT_EQ(orderOfPlace.size(), 2000u);
    EXPECT_EQ(overwritten, 0);
    int foreign = 0;
    for (const auto &[order, place] : opened) {
        if (orderOfPlace[place] != order)
            ++foreign;
    }
    EXPECT_EQ(foreign, 0);
}

class TwoWorkstationsInvoicing : public OrderInvoicingFixture
{
};

TEST_F(TwoWorkstationsInvoicing, FiftyInvoicesEachAtOnceGetAHundredDistinctNumbers)
{
    constexpr int Days = 50;
    for (int day = 0; day < Days; ++day) {
        for (int client : {ClientA, ClientB}) {
            addOrder([&](TZlecenia_przychObj &o) {
                o.DATA = DateTime::fromDate(QDate(2026, 1, 1).addDays(day));
                o.IDKONTRAHENTA = client;
            });
        }
    }
    const QString count = QString::number(Days);
    const auto issued = runBoth(
        {QStringLiteral("invoices"), db.path(), count, QString::number(ClientA)},
        {QStringLiteral("invoices"), db.path(), count, QString::number(ClientB)});
    ASSERT_EQ(issued.size(), 2u * Days);
    EXPECT_EQ(distinct(issued).size(), 2u * Days);
    const std::set<int> numbers = distinct(issued, true);
    EXPECT_EQ(numbers.size(), 2u * Days);
    EXPECT_EQ(*numbers.rbegin(), 2 * Days);
    // Every order on exactly one invoice, of its own client, alone there.
    EXPECT_EQ(db.scalar(QStringLiteral(
                  "SELECT COUNT(*) FROM ZLECENIA_PRZYCH z JOIN FAKTURY f "
                  "ON f.ID_FAKTURY = z.IDFAKTURY WHERE f.ID_KONTRAHENTA = z.IDKONTRAHENTA")),
              QString::number(2 * Days));
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT COUNT(DISTINCT IDFAKTURY) FROM ZLECENIA_PRZYCH")),
              QString::number(2 * Days));
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT COUNT(DISTINCT NR_KOLEJNY) FROM FAKTURY")),
              QString::number(2 * Days));
}
