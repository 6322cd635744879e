#include "TfrmAddEditZlecenia_Przych.h"

#include "ClockTime.h"
#include "Format.h"
#include "IncomingOrderStatements.h"
#include "KeyedLists.h"
#include "MessageService.h"
#include "OrderSaving.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TDaneFirmy.h"
#include "TDateEdit.h"
#include "TKierowcyObj.h"
#include "TLimitedSpinEdit.h"
#include "TNumberEdit.h"
#include "TTaryfyprzewoznikaObj.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include <optional>

namespace {

constexpr int DescriptionLength = 255;

Connection &sessionDatabase()
{
    if (!session().Database)
        throw std::logic_error("The order editor needs the session's database");
    return *session().Database;
}

// The limits of a field are for typing: a value stored by another program
// or an older version is shown as it is, never clipped on its way back.
template <class Field, class Value>
void showUnclipped(Field *field, Value value)
{
    if (value > field->maximum())
        field->setMaximum(value);
    if (value < field->minimum())
        field->setMinimum(value);
    field->setValue(value);
}

// A pricing group is either an agreed amount or a tariff, never both.
void enablePricing(const QRadioButton *agreed, TNumberEdit *amount, QLineEdit *tariff)
{
    amount->setEnabled(agreed->isChecked());
    tariff->setEnabled(!agreed->isChecked());
}

// The user switched the group: the side left behind is emptied.
void switchPricing(const QRadioButton *agreed, TNumberEdit *amount, QLineEdit *tariff,
                   int &tariffKey)
{
    if (agreed->isChecked()) {
        tariffKey = 0;
        tariff->clear();
    } else {
        amount->setValue(0.0);
    }
    enablePricing(agreed, amount, tariff);
}

UnitRates tariffRates(const TTaryfyprzewoznikaObj &tariff)
{
    return {tariff.KWOTA_ZA_KM_LAD, tariff.KWOTA_ZA_KM, tariff.KWOTA_ZA_GODZ,
            tariff.KWOTA_ZA_PALETE};
}

} // namespace

TfrmAddEditZlecenia_Przych::TfrmAddEditZlecenia_Przych(QWidget *owner, int orderKey, int mode)
    : TfrmRODefault(owner), m_order(sessionDatabase()), m_mode(mode)
{
    m_order.ID_ZLECENIA_PRZYCH = mode == Edit ? orderKey : 0;
    setObjectName(QStringLiteral("frmAddEditZlecenia_Przych"));
    setWindowTitle(QStringLiteral("Dodaj/Popraw wysyłkę"));
    lblHeader->setText(QStringLiteral("Dodawanie/Poprawianie wysyłek"));
    lblHeaderDescription->setText(QStringLiteral("Dodaj lub popraw dane o wysyłkach."));
    buildControls();
    buildLayout();
    connectControls();
    connectPricing();
    // The editor closes itself once the order is saved; a failed save keeps
    // it open with everything typed.
    btnOk->setModalResult(0);
    connect(btnOk, &TBitBtn::clicked, this, &TfrmAddEditZlecenia_Przych::btnOkClick);
    resize(760, 640);
}

void TfrmAddEditZlecenia_Przych::connectControls()
{
    for (TNumberEdit *number : std::initializer_list<TNumberEdit *>{
             seKMLadownych, seKMPustych, seIloscGodzin, seIloscPalet, edStawkaKMLadowny,
             edStawkaKMPusty, edStawkaIloscGodzin, edStawkaIloscPalet, seKwota})
        connect(number, &TNumberEdit::valueChanged, this,
                &TfrmAddEditZlecenia_Przych::recomputeTotal);
    connect(rbStawkaUmowna, &QRadioButton::clicked, this,
            &TfrmAddEditZlecenia_Przych::rbStawkaClick);
    connect(rbStawkaTaryfowa, &QRadioButton::clicked, this,
            &TfrmAddEditZlecenia_Przych::rbStawkaClick);
    connect(rbKosztUmowna, &QRadioButton::clicked, this, &TfrmAddEditZlecenia_Przych::rbKosztClick);
    connect(rgKosztTaryfa, &QRadioButton::clicked, this, &TfrmAddEditZlecenia_Przych::rbKosztClick);
    connect(cbPrzewoznik, &QComboBox::activated, this, &TfrmAddEditZlecenia_Przych::carrierChosen);
    connect(cbPrzewoznikObcy, &QCheckBox::clicked, this,
            &TfrmAddEditZlecenia_Przych::ownCarrierClick);
    connect(btnKlientMore, &QPushButton::clicked, this,
            &TfrmAddEditZlecenia_Przych::btnKlientMoreClick);
    connect(BitBtn1, &QPushButton::clicked, this, &TfrmAddEditZlecenia_Przych::BitBtn1Click);
    connect(acKierowca, &QAction::triggered, this, &TfrmAddEditZlecenia_Przych::acKierowcaExecute);
    connect(acPojazd, &QAction::triggered, this, &TfrmAddEditZlecenia_Przych::acPojazdExecute);
    connect(acNaczepa, &QAction::triggered, this, &TfrmAddEditZlecenia_Przych::acNaczepaExecute);
    connect(memOpisDod, &QPlainTextEdit::textChanged, this,
            &TfrmAddEditZlecenia_Przych::limitDescription);
}

void TfrmAddEditZlecenia_Przych::FormCreate()
{
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
    reportFailures(QStringLiteral("Nie można odczytać danych zlecenia"), [&] {
        m_ownerKey = TDaneFirmy().GetConfigInt(QStringLiteral("IDWłaściciela"));
        fillLists();
        fillPriceListMenu();
        if (m_mode == Edit) {
            m_order = IncomingOrderStatements::load(m_order.connection(),
                                                    m_order.ID_ZLECENIA_PRZYCH);
            showOrder();
        } else {
            showNewOrder();
        }
    });
}

void TfrmAddEditZlecenia_Przych::fillLists()
{
    Connection &connection = m_order.connection();
    fillContractors();
    for (QComboBox *city : {cbMiastoOd, cbMiastoPrzez, cbMiastoDo})
        KeyedLists::fillCities(city, connection);
    KeyedLists::fillFilters(cbWspolnik, connection);
}

void TfrmAddEditZlecenia_Przych::fillContractors()
{
    const int client = KeyedLists::currentKey(cbKlient);
    const int carrier = KeyedLists::currentKey(cbPrzewoznik);
    const std::vector<KeyedLists::Entry> contractors
        = KeyedLists::contractors(m_order.connection());
    KeyedLists::fillSorted(cbKlient, contractors);
    KeyedLists::fillSorted(cbPrzewoznik, contractors);
    KeyedLists::selectKey(cbKlient, client);
    KeyedLists::selectKey(cbPrzewoznik, carrier);
}

void TfrmAddEditZlecenia_Przych::showNewOrder()
{
    cbKlient->setCurrentIndex(-1);
    cbPrzewoznik->setCurrentIndex(-1);
    for (QComboBox *city : {cbMiastoOd, cbMiastoPrzez, cbMiastoDo})
        KeyedLists::selectKey(city, 0);
    KeyedLists::selectKey(cbWspolnik, 0);
    rbStawkaUmowna->setChecked(true);
    rbKosztUmowna->setChecked(true);
    applyRevenueMode();
    applyCostMode();
    recomputeTotal();
}

void TfrmAddEditZlecenia_Przych::showOrder()
{
    const TZlecenia_przychObj &o = m_order;
    showUnclipped(seNumerKolejny, o.NUMER);
    edPrzeladunek->setText(o.NUMER_OBCY);
    KeyedLists::selectKey(cbKlient, o.IDKONTRAHENTA);
    KeyedLists::selectKey(cbPrzewoznik, o.IDPRZEWOZNIK);
    cbPrzewoznikObcy->setChecked(m_ownerKey != 0 && o.IDPRZEWOZNIK == m_ownerKey);
    KeyedLists::selectKey(cbMiastoOd, o.IDMIASTO_OD);
    KeyedLists::selectKey(cbMiastoPrzez, o.IDMIASTO_VIA);
    KeyedLists::selectKey(cbMiastoDo, o.IDMIASTO_DO);

    // Orders made elsewhere may carry the loading day in DATA alone.
    deAwizo->setValue(o.AWIZO.isNull() ? o.DATA : o.AWIZO);
    meAwizo->setText(ClockTime::text(o.AWIZO));
    deRozladunek->setValue(o.DOSTARCZENIE);
    meRozladunek->setText(ClockTime::text(o.DOSTARCZENIE));

    showUnclipped(seOdleglosc, o.ODLEGLOSC);
    showUnclipped(seKMLadownych, o.KM_LADOWNE);
    showUnclipped(edStawkaKMLadowny, o.STAWKA_KMLAD);
    showUnclipped(seKMPustych, o.KM_PUSTE);
    showUnclipped(edStawkaKMPusty, o.STAWKA_KMPUSTY);
    showUnclipped(seIloscGodzin, o.ILOSC_GODZIN);
    showUnclipped(edStawkaIloscGodzin, o.STAWKA_GODZINY);
    showUnclipped(seIloscPalet, o.PALETYILOSC);
    showUnclipped(edStawkaIloscPalet, o.STAWKA_PALETY);

    // An order priced by rates keeps that mode even after its tariff was
    // cleared: its total comes from the rates, not from the zero amount.
    const UnitRates r = rates();
    const bool byRates = r.perLoadedKilometre != 0.0 || r.perTonne != 0.0 || r.perHour != 0.0
                         || r.perPallet != 0.0;
    const bool byTariff = o.IDTARYFY != 0 || (o.KWOTA == 0.0 && byRates);
    showUnclipped(seKwota, o.KWOTA);
    m_tariffKey = o.IDTARYFY;
    showTariffName(ceTaryfa, m_tariffKey);
    (byTariff ? rbStawkaTaryfowa : rbStawkaUmowna)->setChecked(true);
    showUnclipped(seKosztKwota, o.KOSZTKWOTA);
    m_costTariffKey = o.IDTARYFYKOSZT;
    showTariffName(ceKosztTaryfa, m_costTariffKey);
    (m_costTariffKey != 0 ? rgKosztTaryfa : rbKosztUmowna)->setChecked(true);
    applyRevenueMode();
    applyCostMode();

    edPojazd->setText(o.POJAZD);
    edNaczepa->setText(o.NACZEPA);
    ceKierowca->setText(o.KIEROWCA);
    m_driverKey = o.IDKIEROWCY;
    showUnclipped(seDokWZ, o.DOK_WZ);
    showUnclipped(edNrKarty, o.NR_KARTY);
    showUnclipped(edNrListu, o.NR_LISTU);
    memOpisDod->setPlainText(o.DODATKOWY_OPIS);
    showUnclipped(ceRabat, o.RABAT);
    showUnclipped(ceOplataSkarbowa, o.OPLATA_SKARBOWA);
    KeyedLists::selectKey(cbWspolnik, o.FILTR1);
    chslubice->setChecked(o.FILTR2 != 0);
    recomputeTotal();
}

void TfrmAddEditZlecenia_Przych::showTariffName(QLineEdit *field, int key)
{
    field->clear();
    if (key == 0)
        return;
    const TTaryfyprzewoznikaObj tariff
        = TTaryfyprzewoznikaObj(m_order.connection()).SelectById(key);
    field->setText(tariff.NAZWA_STAWKI);
}

OrderQuantities TfrmAddEditZlecenia_Przych::quantities() const
{
    return {seKMLadownych->value(), seKMPustych->value(), seIloscGodzin->value(),
            seIloscPalet->value()};
}

UnitRates TfrmAddEditZlecenia_Przych::rates() const
{
    return {edStawkaKMLadowny->value(), edStawkaKMPusty->value(), edStawkaIloscGodzin->value(),
            edStawkaIloscPalet->value()};
}

double TfrmAddEditZlecenia_Przych::totalRate() const
{
    return OrderRates::total(rbStawkaUmowna->isChecked(), seKwota->value(), quantities(), rates());
}

void TfrmAddEditZlecenia_Przych::recomputeTotal()
{
    lblStawkaRazem->setText(Format::number(totalRate(), u"#,##0.00"));
}

void TfrmAddEditZlecenia_Przych::applyRevenueMode()
{
    enablePricing(rbStawkaUmowna, seKwota, ceTaryfa);
}

void TfrmAddEditZlecenia_Przych::applyCostMode()
{
    enablePricing(rbKosztUmowna, seKosztKwota, ceKosztTaryfa);
}

void TfrmAddEditZlecenia_Przych::rbStawkaClick()
{
    switchPricing(rbStawkaUmowna, seKwota, ceTaryfa, m_tariffKey);
    recomputeTotal();
}

void TfrmAddEditZlecenia_Przych::rbKosztClick()
{
    switchPricing(rbKosztUmowna, seKosztKwota, ceKosztTaryfa, m_costTariffKey);
}

void TfrmAddEditZlecenia_Przych::carrierChosen()
{
    cbPrzewoznikObcy->setChecked(m_ownerKey != 0
                                 && KeyedLists::currentKey(cbPrzewoznik) == m_ownerKey);
}

void TfrmAddEditZlecenia_Przych::ownCarrierClick(bool checked)
{
    if (checked && cbPrzewoznik->findData(m_ownerKey) >= 0)
        KeyedLists::selectKey(cbPrzewoznik, m_ownerKey);
}

bool TfrmAddEditZlecenia_Przych::pickContractor(QComboBox *list)
{
    int chosen = 0;
    if (TDaneFirmy().SelectContractor(KeyedLists::currentKey(list), chosen) != 1)
        return false;
    // The contractors' register may have added the one chosen.
    if (list->findData(chosen) < 0)
        fillContractors();
    KeyedLists::selectKey(list, chosen);
    return true;
}

void TfrmAddEditZlecenia_Przych::btnKlientMoreClick()
{
    pickContractor(cbKlient);
}

void TfrmAddEditZlecenia_Przych::BitBtn1Click()
{
    if (pickContractor(cbPrzewoznik))
        carrierChosen();
}

void TfrmAddEditZlecenia_Przych::acKierowcaExecute()
{
    int chosen = 0;
    if (TDaneFirmy().SelectDriver(m_driverKey, chosen) != 1)
        return;
    const TKierowcyObj driver = TKierowcyObj(m_order.connection()).SelectById(chosen);
    m_driverKey = chosen;
    ceKierowca->setText(driver.IMIE + u' ' + driver.NAZWISKO);
}

void TfrmAddEditZlecenia_Przych::limitDescription()
{
    const QString text = memOpisDod->toPlainText();
    if (text.size() <= DescriptionLength)
        return;
    QSignalBlocker blocker(memOpisDod);
    memOpisDod->setPlainText(text.left(DescriptionLength));
    memOpisDod->moveCursor(QTextCursor::End);
}

bool TfrmAddEditZlecenia_Przych::collectOrder()
{
    const std::optional<QTime> loading = ClockTime::parse(meAwizo->text());
    const std::optional<QTime> unloading = ClockTime::parse(meRozladunek->text());
    for (const auto &[time, field] : {std::pair{loading, meAwizo}, {unloading, meRozladunek}}) {
        if (!time) {
            Messages::error(ClockTime::invalidTimeMessage(field->text()));
            field->setFocus();
            return false;
        }
    }

    TZlecenia_przychObj &o = m_order;
    o.NUMER = seNumerKolejny->value();
    o.NUMER_OBCY = edPrzeladunek->text();
    // A contractor or city no longer in its list stays as the order had it.
    o.IDKONTRAHENTA = KeyedLists::currentKeyOr(cbKlient, o.IDKONTRAHENTA);
    o.IDPRZEWOZNIK = KeyedLists::currentKeyOr(cbPrzewoznik, o.IDPRZEWOZNIK);
    o.IDMIASTO_OD = KeyedLists::currentKeyOr(cbMiastoOd, o.IDMIASTO_OD);
    o.IDMIASTO_VIA = KeyedLists::currentKeyOr(cbMiastoPrzez, o.IDMIASTO_VIA);
    o.IDMIASTO_DO = KeyedLists::currentKeyOr(cbMiastoDo, o.IDMIASTO_DO);
    o.DATA = deAwizo->value();
    o.AWIZO = ClockTime::combine(deAwizo->value(), *loading);
    o.DOSTARCZENIE = ClockTime::combine(deRozladunek->value(), *unloading);
    o.ODLEGLOSC = seOdleglosc->value();
    o.KM_LADOWNE = seKMLadownych->value();
    o.STAWKA_KMLAD = edStawkaKMLadowny->value();
    o.KM_PUSTE = seKMPustych->value();
    o.STAWKA_KMPUSTY = edStawkaKMPusty->value();
    o.ILOSC_GODZIN = seIloscGodzin->value();
    o.STAWKA_GODZINY = edStawkaIloscGodzin->value();
    o.PALETYILOSC = seIloscPalet->value();
    o.STAWKA_PALETY = edStawkaIloscPalet->value();
    o.KWOTA = seKwota->value();
    o.IDTARYFY = m_tariffKey;
    o.KOSZTKWOTA = seKosztKwota->value();
    o.IDTARYFYKOSZT = m_costTariffKey;
    o.STAWKA_RAZEM = totalRate();
    o.RABAT = ceRabat->value();
    o.OPLATA_SKARBOWA = ceOplataSkarbowa->value();
    o.POJAZD = edPojazd->text();
    o.NACZEPA = edNaczepa->text();
    o.KIEROWCA = ceKierowca->text();
    o.IDKIEROWCY = m_driverKey;
    o.DOK_WZ = seDokWZ->value();
    o.NR_KARTY = edNrKarty->value();
    o.NR_LISTU = edNrListu->value();
    o.DODATKOWY_OPIS = memOpisDod->toPlainText().left(DescriptionLength);
    o.FILTR1 = KeyedLists::currentKeyOr(cbWspolnik, o.FILTR1);
    o.FILTR2 = chslubice->isChecked() ? 1 : 0;
    if (m_mode == Add)
        o.IDUSER = session().UserID;
    return true;
}

double TfrmAddEditZlecenia_Przych::carrierCost() const
{
    if (m_costTariffKey == 0)
        return seKosztKwota->value();
    const TTaryfyprzewoznikaObj tariff
        = TTaryfyprzewoznikaObj(m_order.connection()).SelectById(m_costTariffKey);
    return OrderRates::priced(quantities(), tariffRates(tariff));
}

void TfrmAddEditZlecenia_Przych::save()
{
    m_order.KOSZTRAZEM = carrierCost();
    OrderSaving::save(session().transaction(), m_order, m_mode == Add);
    seNumerKolejny->setValue(m_order.NUMER);
}

void TfrmAddEditZlecenia_Przych::btnOkClick()
{
    if (!collectOrder())
        return;
    if (reportFailures(QStringLiteral("Nie można zapisać zlecenia"), [&] { save(); }))
        done(mrOk);
}
