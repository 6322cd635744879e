#include "Distances.h"
#include "PriceRanges.h"
#include "ShotBook.h"
#include "ShotDatabase.h"
#include "Shots.h"
#include "Statement.h"
#include "TfrmAddEditCennikWierszeKolumny.h"
#include "TfrmAddEditCenniki.h"
#include "TfrmAddEditGrupy.h"
#include "TfrmAddEditMiasta.h"
#include "TfrmAddEditStawkiTaryfowe.h"
#include "TfrmCennikMenu.h"
#include "TfrmCennikWierszeKolumny.h"
#include "TfrmCenniki.h"
#include "TfrmCennikiKontrahenci.h"
#include "TfrmMiasta.h"
#include "TfrmStawkiTaryfowe.h"

#include <QTableWidget>

namespace {

void run(Connection &connection, const QString &sql)
{
    Statement st(connection);
    st.add(sql);
    st.exec();
}

int lastKey(Connection &connection, const QString &table)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT MAX(ID_%1) FROM %1").arg(table));
    st.exec();
    return st.integer(0);
}

// Price lists, tariffs and distances of a small domestic company, written
// into the shot database the first time a pricing form needs them.
Connection &pricingDemo(ShotContext &context)
{
    Connection &c = context.database().connection();
    if (!PriceRanges::list(c, RangeAxis::Kilometres,
                           PriceRanges::gridListing(RangeAxis::Kilometres))
             .empty())
        return c;
    for (int upTo : {50, 100, 200, 300, 500, 800})
        PriceRanges::add(c, RangeAxis::Kilometres, upTo);
    for (int upTo : {1000, 5000, 12000, 24000})
        PriceRanges::add(c, RangeAxis::Kilograms, upTo);
    run(c, QStringLiteral("INSERT INTO CENNIKI_KRAJ_GRUPY (NAZWA, BLOKADA) "
                          "VALUES ('Klienci kluczowi', 0)"));
    run(c, QStringLiteral("INSERT INTO CENNIKI_KRAJ_GRUPY (NAZWA, BLOKADA) "
                          "VALUES ('Stary cennik 2024', 1)"));
    run(c, QStringLiteral("INSERT INTO CENNIKI_KRAJ (GRUPA, KWOTA, KILOGRAMY, KILOMETRY) "
                          "SELECT 0, 180 + 140 * (w.ZAKRES_WDO / 100.0) * (1 + k.ZAKRES_KDO / "
                          "20000.0), k.ID_CENNIKI_KRAJ_KOLUMNY, w.ID_CENNIKI_KRAJ_WIERSZE "
                          "FROM CENNIKI_KRAJ_WIERSZE w, CENNIKI_KRAJ_KOLUMNY k"));
    run(c, QStringLiteral("INSERT INTO TARYFYPRZEWOZNIKA (KWOTA_ZA_KM, KWOTA_ZA_KM_LAD, "
                          "KWOTA_ZA_GODZ, KWOTA_ZA_PALETE, NAZWA_STAWKI, NUMER_STAWKI, "
                          "TARYFAWLASNA) VALUES (10, 2.7, 70, 35, 'Podwykonawca krajowy', 11, 0)"));
    run(c, QStringLiteral("INSERT INTO TARYFYPRZEWOZNIKA (KWOTA_ZA_KM, KWOTA_ZA_KM_LAD, "
                          "KWOTA_ZA_GODZ, KWOTA_ZA_PALETE, NAZWA_STAWKI, NUMER_STAWKI, "
                          "TARYFAWLASNA) "
                          "VALUES (12, 3.25, 80, 42, 'Podwykonawca chłodnia', 12, 0)"));
    const char *cities[][2] = {{"Łódź", "90-001"}, {"Warszawa", "00-001"}, {"Kraków", "30-001"},
                               {"Poznań", "60-001"}, {"Gdańsk", "80-001"}};
    std::vector<int> keys;
    for (const auto &city : cities) {
        Statement st(c);
        st.add(QStringLiteral("INSERT INTO MIASTA (NAZWA, KOD) VALUES (:aNAZWA, :aKOD)"));
        st.bind(QStringLiteral("aNAZWA"), QString::fromUtf8(city[0]));
        st.bind(QStringLiteral("aKOD"), QString::fromUtf8(city[1]));
        st.exec();
        keys.push_back(lastKey(c, QStringLiteral("MIASTA")));
    }
    const int distances[] = {135, 270, 215, 340};
    for (std::size_t i = 1; i < keys.size(); ++i)
        Distances::remember(c, keys[0], 0, keys[i], distances[i - 1]);
    run(c, QStringLiteral("INSERT INTO KONFIGURACJA (POLE, TYP, VALUE_STRING) "
                          "VALUES ('MiastoDomowe', 'S', 'Łódź')"));
    return c;
}

template <class Form, class... Args>
ShotBook::Maker form(Args... args)
{
    return [=](ShotContext &context) -> std::unique_ptr<QWidget> {
        pricingDemo(context);
        return TfrmRODefault::create<Form>(args...);
    };
}

std::unique_ptr<QWidget> gridWithCell(ShotContext &context)
{
    pricingDemo(context);
    auto grid = TfrmRODefault::create<TfrmCenniki>(nullptr);
    grid->sgCennik->setCurrentCell(2, 1);
    return grid;
}

} // namespace

void addPricingShots(ShotBook &book)
{
    book.add(QStringLiteral("frmCennikMenu"), form<TfrmCennikMenu>(nullptr));
    book.add(QStringLiteral("frmCennikWierszeKolumny"), form<TfrmCennikWierszeKolumny>(nullptr));
    book.add(QStringLiteral("frmAddEditCennikWierszeKolumny"),
             form<TfrmAddEditCennikWierszeKolumny>(
                 nullptr, 300, PriceRanges::duplicateTest(RangeAxis::Kilometres),
                 PriceRanges::unit(RangeAxis::Kilometres)));
    book.add(QStringLiteral("frmAddEditGrupy"),
             form<TfrmAddEditGrupy>(nullptr, QStringLiteral("Klienci kluczowi"), false));
    book.add(QStringLiteral("frmCenniki"), gridWithCell);
    book.add(QStringLiteral("frmAddEditCenniki"),
             form<TfrmAddEditCenniki>(nullptr, QStringLiteral("1001-5000"),
                                      QStringLiteral("101-200"), 492.8));
    book.add(QStringLiteral("frmCennikiKontrahenci"), form<TfrmCennikiKontrahenci>(nullptr));
    book.add(QStringLiteral("frmStawkiTaryfowe"), form<TfrmStawkiTaryfowe>(nullptr, 0, 0));
    book.add(QStringLiteral("frmAddEditStawkiTaryfowe"),
             form<TfrmAddEditStawkiTaryfowe>(nullptr, TfrmAddEditStawkiTaryfowe::Edit, 1));
    book.add(QStringLiteral("frmMiasta"), form<TfrmMiasta>(nullptr));
    book.add(QStringLiteral("frmAddEditMiasta"), form<TfrmAddEditMiasta>(nullptr, 1));
}
