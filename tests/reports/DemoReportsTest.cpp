// The demo company gives both reports something to show on first run.
#include "DemoSeeder.h"
#include "IssuedInvoices.h"
#include "PartnersSelection.h"
#include "SessionFixture.h"
#include "Statement.h"

#include <algorithm>

namespace {

constexpr int Jan = 1;     // the first partner of the demo company
constexpr int Adam = 2;

class DemoReports : public SessionFixture
{
protected:
    void SetUp() override
    {
        options.orders = 300;
        options.today = QDate(2026, 11, 22);
        DemoSeeder(db.connection(), options).seed();
    }

    int rows(const PartnersSelection &selection, const QString &condition = QString())
    {
        Statement st(db.connection());
        selection.prepare(st, PartnersSelection::ownShortName(db.connection()));
        st.exec();
        int count = 0;
        for (; !st.atEnd(); st.next()) {
            if (condition.isEmpty() || st.number(condition) == 0.0)
                ++count;
        }
        return count;
    }

    DemoSeeder::Options options;
};

} // namespace

TEST_F(DemoReports, InvoicesOfBothExecutorsWithStampFeesAndPartnersWithForeignAndFreeOrders)
{
    const QDate from = options.today.addDays(-60);
    for (const bool own : {true, false}) {
        IssuedInvoices invoices(db.connection(), from, options.today, own);
        EXPECT_GT(invoices.read(), 0) << own;
        const std::vector<TPozycjaZestawienia> records = invoices.build();
        EXPECT_TRUE(std::any_of(records.begin(), records.end(), [](const auto &r) {
            return r.OplataSkarbowa > 0.0;
        })) << own;
    }

    EXPECT_EQ(PartnersSelection::partners(db.connection()).size(), 2u);
    PartnersSelection all;
    all.from = from;
    all.to = options.today;
    for (const int partner : {Jan, Adam}) {
        PartnersSelection one = all;
        one.partner = partner;
        EXPECT_GT(rows(one), 0) << partner;
    }
    PartnersSelection abroad = all;
    abroad.region = PartnersSelection::Foreign;
    EXPECT_GT(rows(abroad), 0);
    PartnersSelection own = all;
    own.executor = PartnersSelection::OwnCompany;
    EXPECT_GT(rows(own), 0);
    EXPECT_GT(rows(all, QStringLiteral("KOSZTRAZEM")), 0);   // orders without cost
}
