#include "TfrmAddEditZleceniaZbiorcze.h"

#include "CollectiveOrderChoices.h"
#include "FixedTexts.h"
#include "MessageService.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TDaneFirmy.h"
#include "TDateEdit.h"
#include "TKierowcyObj.h"
#include "TLimitedSpinEdit.h"
#include "TNumberEdit.h"
#include "TPojazdyObj.h"
#include "TfrmStawkiTaryfowe.h"

#include <QAction>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

namespace {

constexpr int DescriptionLength = 200;
// The tariff register's kind of the company's own tariffs.
constexpr int OwnTariffs = 1;

QString driverName(const TKierowcyObj &driver)
{
    return driver.IMIE + u' ' + driver.NAZWISKO;
}

void fill(QComboBox *combo, const std::vector<CollectiveOrderChoices::Item> &items)
{
    combo->clear();
    for (const CollectiveOrderChoices::Item &item : items)
        combo->addItem(item.text, item.key);
}

int chosenKey(const QComboBox *combo)
{
    return combo->currentIndex() < 0 ? 0 : combo->currentData().toInt();
}

} // namespace

TfrmAddEditZleceniaZbiorcze::TfrmAddEditZleceniaZbiorcze(QWidget *owner, int key, Mode mode)
    : TfrmRODefault(owner), m_key(mode == Edit ? key : 0), m_mode(mode)
{
    setObjectName(QStringLiteral("frmAddEditZleceniaZbiorcze"));
    setWindowTitle(mode == Edit ? QStringLiteral("Edycja danych")
                                : QStringLiteral("Wprowadzanie danych"));
    lblHeader->setText(QStringLiteral("Zlecenie zbiorcze"));
    lblHeaderDescription->setText(
        QStringLiteral("Dane zlecenia zbiorczego: daty, pojazd, kierowca i wykonawca."));
    btnOk->setModalResult(0);
    buildControls();
    connectControls();
    resize(640, 600);
}

void TfrmAddEditZleceniaZbiorcze::connectControls()
{
    connect(btnOk, &QPushButton::clicked, this, &TfrmAddEditZleceniaZbiorcze::btnOkClick);
    connect(seTekstStaly, &TNumberEdit::valueChanged, this,
            &TfrmAddEditZleceniaZbiorcze::checkFixedText);
    connect(imgTekstJest, &QToolButton::clicked, this,
            &TfrmAddEditZleceniaZbiorcze::showFixedText);
    connect(acPojazd, &QAction::triggered, this, [this] { pickVehicle(m_own); });
    connect(acKierowca, &QAction::triggered, this, [this] { pickDriver(m_own); });
    connect(acPojazdObcy, &QAction::triggered, this, [this] { pickVehicle(m_outside); });
    connect(acKierowcaObcy, &QAction::triggered, this, [this] { pickDriver(m_outside); });
    connect(acTaryfaWlasna, &QAction::triggered, this, &TfrmAddEditZleceniaZbiorcze::pickTariff);
    connect(btnMore, &QPushButton::clicked, this, &TfrmAddEditZleceniaZbiorcze::pickCarrier);
    connect(memoDodatkowyOpis, &QPlainTextEdit::textChanged, this, [this] {
        const QString text = memoDodatkowyOpis->toPlainText();
        if (text.size() <= DescriptionLength)
            return;
        const QSignalBlocker blocker(memoDodatkowyOpis);
        memoDodatkowyOpis->setPlainText(text.left(DescriptionLength));
        memoDodatkowyOpis->moveCursor(QTextCursor::End);
    });
}

void TfrmAddEditZleceniaZbiorcze::FormCreate()
{
    setROFlatControls(true);
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
    const TDaneFirmy company;
    m_appPath = company.GetAppPath();
    Connection *database = session().Database;
    CollectiveOrder order;
    order.date = DateTime::today();
    if (database) {
        m_ownerKey = company.GetConfigInt(QStringLiteral("IDWłaściciela"));
        reportFailures(QStringLiteral("Nie można odczytać zlecenia zbiorczego"), [&] {
            if (m_mode == Edit)
                order = CollectiveOrder::load(*database, m_key, m_ownerKey);
        });
        fillChoices(order.ownFleet ? 0 : order.carrier);
    }
    show(order);
}

void TfrmAddEditZleceniaZbiorcze::fillChoices(int currentCarrier)
{
    CollectiveOrderChoices choices;
    reportFailures(QStringLiteral("Nie można odczytać przewoźników i stawek VAT"), [&] {
        choices = CollectiveOrderChoices::load(*session().Database, m_ownerKey, currentCarrier);
    });
    fill(cbWykonawca, choices.carriers);
    const int vat = chosenKey(cbVAT);
    fill(cbVAT, choices.vatRates);
    cbVAT->setCurrentIndex(std::max(cbVAT->findData(vat), 0));
}

void TfrmAddEditZleceniaZbiorcze::show(const CollectiveOrder &order)
{
    deZlecenia->setValue(order.date);
    if (order.number > 0)
        seNumerKolejny->setValue(order.number);
    ceTermin->setValue(order.paymentDays);
    seNumerJazdy->setValue(order.tripNumber);
    if (cbVAT->findData(order.vatRate) >= 0)
        cbVAT->setCurrentIndex(cbVAT->findData(order.vatRate));
    seKwota->setValue(order.carrierAmount);
    deWystawiono->setValue(order.carrierIssued);
    if (order.textNumber > 0)
        seTekstStaly->setValue(order.textNumber);
    checkFixedText();
    Crew &crew = order.ownFleet ? m_own : m_outside;
    pcWykonawca->setCurrentWidget(order.ownFleet ? tsWlasny : tsObcy);
    if (!order.ownFleet)
        cbWykonawca->setCurrentIndex(cbWykonawca->findData(order.carrier));
    crew.vehicleKey = order.vehicle;
    crew.vehicle->setText(order.vehicleText);
    crew.driverKey = order.driver;
    crew.driver->setText(order.driverText);
    if (order.ownFleet)
        seStawkaWlasna->setValue(order.ownRate);
    deDataZaladunku->setValue(order.loadingDate);
    deDataRozladunku->setValue(order.unloadingDate);
    m_ownTariff = order.ownTariff;
    ceTaryfaWlasna->setText(order.ownTariffName);
    if (m_mode == Add)
        pcWykonawca->setCurrentWidget(tsWlasny);
}

CollectiveOrder TfrmAddEditZleceniaZbiorcze::entered() const
{
    CollectiveOrder order;
    order.number = seNumerKolejny->value();
    order.date = deZlecenia->value();
    order.loadingDate = deDataZaladunku->value();
    order.unloadingDate = deDataRozladunku->value();
    order.paymentDays = ceTermin->value();
    order.textNumber = seTekstStaly->value();
    order.ownTariff = m_ownTariff;
    order.tripNumber = seNumerJazdy->value();
    order.carrierIssued = deWystawiono->value();
    order.carrierAmount = seKwota->value();
    order.vatRate = chosenKey(cbVAT);
    order.ownFleet = pcWykonawca->currentWidget() == tsWlasny;
    const Crew &crew = order.ownFleet ? m_own : m_outside;
    order.vehicle = crew.vehicleKey;
    order.driver = crew.driverKey;
    if (order.ownFleet)
        order.ownRate = seStawkaWlasna->value();
    else {
        order.carrier = chosenKey(cbWykonawca);
        order.carrierInvoice = edFakturaObca->text();
    }
    return order;
}

bool TfrmAddEditZleceniaZbiorcze::textShown() const
{
    return !imgTekstJest->isHidden();
}

void TfrmAddEditZleceniaZbiorcze::checkFixedText()
{
    const bool exists = FixedTexts::exists(m_appPath, seTekstStaly->value());
    imgTekstJest->setVisible(exists);
    imgTekstBrak->setVisible(!exists);
}

void TfrmAddEditZleceniaZbiorcze::showFixedText()
{
    const int number = seTekstStaly->value();
    Messages::inform(QStringLiteral("Tekst stały nr %1").arg(number),
                     FixedTexts::read(m_appPath, number));
}

void TfrmAddEditZleceniaZbiorcze::pickVehicle(Crew &crew)
{
    int chosen = 0;
    if (TDaneFirmy().SelectVehicle(crew.vehicleKey, chosen) != 1)
        return;
    reportFailures(QStringLiteral("Nie można odczytać pojazdu"), [&] {
        Connection &connection = *session().Database;
        const TPojazdyObj vehicle = TPojazdyObj(connection).SelectById(chosen);
        crew.driverKey = 0;
        crew.driver->clear();
        crew.vehicleKey = chosen;
        crew.vehicle->setText(vehicle.NR_REJ.left(crew.vehicle->maxLength()));
        if (vehicle.DEF_KIEROWCA != 0) {
            const TKierowcyObj driver = TKierowcyObj(connection).SelectById(vehicle.DEF_KIEROWCA);
            crew.driverKey = driver.ID_KIEROWCA;
            crew.driver->setText(driverName(driver));
        }
    });
}

void TfrmAddEditZleceniaZbiorcze::pickDriver(Crew &crew)
{
    int chosen = 0;
    if (TDaneFirmy().SelectDriver(crew.driverKey, chosen) != 1)
        return;
    reportFailures(QStringLiteral("Nie można odczytać kierowcy"), [&] {
        const TKierowcyObj driver = TKierowcyObj(*session().Database).SelectById(chosen);
        crew.driverKey = chosen;
        crew.driver->setText(driverName(driver));
    });
}

void TfrmAddEditZleceniaZbiorcze::pickTariff()
{
    auto picker = TfrmRODefault::create<TfrmStawkiTaryfowe>(this, m_ownTariff, OwnTariffs);
    if (picker->showModal() != mrOk || !picker->hasSelectedTariff())
        return;
    m_ownTariff = picker->selectedTariff().ID_TARYFYPRZEWOZNIKA;
    ceTaryfaWlasna->setText(picker->selectedTariff().NAZWA_STAWKI);
}

void TfrmAddEditZleceniaZbiorcze::pickCarrier()
{
    int chosen = 0;
    if (TDaneFirmy().SelectContractor(chosenKey(cbWykonawca), chosen) != 1)
        return;
    // The contractors' register may have added the one chosen, or it
    // carries for the first time.
    if (cbWykonawca->findData(chosen) < 0)
        fillChoices(chosen);
    cbWykonawca->setCurrentIndex(cbWykonawca->findData(chosen));
}

void TfrmAddEditZleceniaZbiorcze::btnOkClick()
{
    Connection *database = session().Database;
    if (!database)
        return;
    const CollectiveOrder order = entered();
    bool saved = false;
    reportFailures(QStringLiteral("Nie zapisano zlecenia zbiorczego"),
                   [&] { saved = order.save(*database, m_key, m_ownerKey); });
    if (saved)
        done(mrOk);
}

void TfrmAddEditZleceniaZbiorcze::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || !ROCloseOnESC()) {
        TfrmRODefault::keyPressEvent(event);
        return;
    }
    event->accept();
    if (Messages::confirm(QStringLiteral("Wyjście"), QStringLiteral("Anulować edycję?")))
        done(mrCancel);
}
