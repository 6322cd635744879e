#include "TfrmStawkiTaryfowe.h"

#include "Format.h"
#include "LinkButton.h"
#include "MessageService.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TListView.h"
#include "TariffKinds.h"
#include "TframeListView.h"
#include "TfrmAddEditStawkiTaryfowe.h"

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QMenu>

#include <stdexcept>

namespace {

QString amountText(double amount)
{
    return Format::number(amount, u"##0.00");
}

} // namespace

TfrmStawkiTaryfowe::TfrmStawkiTaryfowe(QWidget *owner, int currentTariffId, int kindIndex)
    : TfrmRODefault(owner), m_currentTariffId(currentTariffId), m_kindIndex(kindIndex)
{
    setObjectName(QStringLiteral("frmStawkiTaryfowe"));
    setWindowTitle(QStringLiteral("Stawki taryfowe"));
    setSizeGripEnabled(true);
    lblHeader->setText(QStringLiteral("Stawki taryfowe"));
    lblHeaderDescription->setText(
        QStringLiteral("Lista stawek taryfowych własnych lub przewoźnika."));
    btnOk->setText(QStringLiteral("&Wybierz"));
    // Closes only when a tariff is selected.
    btnOk->setModalResult(0);

    lblFilter = new QLabel(QStringLiteral("Wyświetl stawki "), pnlClient);
    lblFilter->setObjectName(QStringLiteral("lblFilter"));
    cbFilter = new QComboBox(pnlClient);
    cbFilter->setObjectName(QStringLiteral("cbFilter"));
    cbFilter->addItems(TariffKinds::names());
    lblFilter->setBuddy(cbFilter);
    frameListView1 = new TframeListView(this, pnlClient, QStringLiteral("frameListView1"));

    auto *filterRow = new QHBoxLayout;
    filterRow->addWidget(lblFilter);
    filterRow->addWidget(cbFilter);
    filterRow->addStretch(1);
    auto *layout = new QVBoxLayout(pnlClient);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(filterRow);
    layout->addWidget(frameListView1, 1);

    TListView *list = frameListView1->lvMain;
    list->addColumn(QStringLiteral("Nazwa stawki"), 100);
    list->addColumn(QStringLiteral("Numer"), 60);
    list->addColumn(QStringLiteral("Kwota za km ładowny"), 120);
    list->addColumn(QStringLiteral("Kwota za tonę"), 120);
    list->addColumn(QStringLiteral("Kwota za paletę"), 100);
    list->addColumn(QStringLiteral("Kwota za godzinę"), 100);
    frameListView1->numericColumns()
        << QStringLiteral("Numer") << QStringLiteral("Kwota za km ładowny")
        << QStringLiteral("Kwota za tonę") << QStringLiteral("Kwota za paletę")
        << QStringLiteral("Kwota za godzinę");

    acDodaj = new QAction(QStringLiteral("&Dodaj"), this);
    acPopraw = new QAction(QStringLiteral("&Popraw"), this);
    acUsun = new QAction(QStringLiteral("&Usuń"), this);
    acDodaj->setObjectName(QStringLiteral("acDodaj"));
    acPopraw->setObjectName(QStringLiteral("acPopraw"));
    acUsun->setObjectName(QStringLiteral("acUsun"));
    connect(acDodaj, &QAction::triggered, this, &TfrmStawkiTaryfowe::acDodajExecute);
    connect(acPopraw, &QAction::triggered, this, &TfrmStawkiTaryfowe::acPoprawExecute);
    connect(acUsun, &QAction::triggered, this, &TfrmStawkiTaryfowe::acUsunExecute);
    linkButton(frameListView1->BitBtn5, acDodaj);
    linkButton(frameListView1->BitBtn4, acPopraw);
    linkButton(frameListView1->BitBtn6, acUsun);
    connect(frameListView1->BitBtn7, &QPushButton::clicked, frameListView1,
            &TframeListView::Refresh);
    frameListView1->pmMain->addSeparator();
    frameListView1->pmMain->addActions({acDodaj, acPopraw, acUsun});

    connect(btnOk, &TBitBtn::clicked, this, &TfrmStawkiTaryfowe::btnOkClick);
    resize(900, 480);
}

const TTaryfyprzewoznikaObj &TfrmStawkiTaryfowe::selectedTariff() const
{
    if (!m_selected)
        throw std::logic_error("TfrmStawkiTaryfowe: no tariff was chosen");
    return *m_selected;
}

void TfrmStawkiTaryfowe::FormCreate()
{
    TfrmRODefault::FormCreate();
    frameListView1->setROSetUserID(session().UserID);
    const int kind = TariffKinds::openingIndex(m_kindIndex, cbFilter->count());
    cbFilter->setCurrentIndex(kind < cbFilter->count() ? kind : -1);
    LoadLVData();
    frameListView1->lvMain->selectByKey(m_currentTariffId);
    UpdateControls();
    connect(cbFilter, &QComboBox::currentIndexChanged, this, [this] {
        LoadLVData();
        UpdateControls();
    });
}

void TfrmStawkiTaryfowe::LoadLVData()
{
    TListView *list = frameListView1->lvMain;
    list->beginUpdate();
    list->clear();
    m_records.clear();
    Connection *database = session().Database;
    if (database && cbFilter->currentIndex() >= 0) {
        const TTaryfyprzewoznikaObj tariffs(*database);
        for (TTaryfyprzewoznikaObj &tariff : tariffs.SelectWhere(
                 QStringLiteral("TARYFAWLASNA"), opEqual, cbFilter->currentIndex())) {
            if (tariff.ID_TARYFYPRZEWOZNIKA == 0)
                continue;
            list->addItem(tariff.NAZWA_STAWKI,
                          {QString::number(tariff.NUMER_STAWKI), amountText(tariff.KWOTA_ZA_KM_LAD),
                           amountText(tariff.KWOTA_ZA_KM), amountText(tariff.KWOTA_ZA_PALETE),
                           amountText(tariff.KWOTA_ZA_GODZ)},
                          tariff.ID_TARYFYPRZEWOZNIKA);
            const int key = tariff.ID_TARYFYPRZEWOZNIKA;
            m_records.insert_or_assign(key, std::move(tariff));
        }
    }
    list->endUpdate();
}

void TfrmStawkiTaryfowe::UpdateControls()
{
    const bool selected = frameListView1->lvMain->selectedIndex() >= 0;
    acDodaj->setEnabled(true);
    acPopraw->setEnabled(selected);
    acUsun->setEnabled(selected);
}

const TTaryfyprzewoznikaObj *TfrmStawkiTaryfowe::recordAt(int row) const
{
    if (row < 0)
        return nullptr;
    const auto found = m_records.find(frameListView1->lvMain->key(row));
    return found == m_records.end() ? nullptr : &found->second;
}

void TfrmStawkiTaryfowe::acDodajExecute()
{
    auto editor = TfrmRODefault::create<TfrmAddEditStawkiTaryfowe>(
        this, TfrmAddEditStawkiTaryfowe::Insert, 0);
    if (editor->showModal() == mrOk)
        LoadLVData();
    UpdateControls();
}

void TfrmStawkiTaryfowe::acPoprawExecute()
{
    const TTaryfyprzewoznikaObj *record = recordAt(frameListView1->lvMain->selectedIndex());
    if (!record)
        return;
    const int key = record->ID_TARYFYPRZEWOZNIKA;
    auto editor = TfrmRODefault::create<TfrmAddEditStawkiTaryfowe>(
        this, TfrmAddEditStawkiTaryfowe::Edit, key);
    if (editor->showModal() == mrOk) {
        LoadLVData();
        frameListView1->lvMain->selectByKey(key);
    }
    UpdateControls();
}

void TfrmStawkiTaryfowe::acUsunExecute()
{
    const int row = frameListView1->lvMain->selectedIndex();
    const TTaryfyprzewoznikaObj *record = recordAt(row);
    if (!record)
        return;
    if (!Messages::confirm(QStringLiteral("Usuwanie"),
                           QStringLiteral("Usunąć wybraną pozycję")))
        return;
    TTaryfyprzewoznikaObj doomed = *record;
    doomed.Delete();
    removeRow(row);
    UpdateControls();
}

void TfrmStawkiTaryfowe::removeRow(int row)
{
    // The list is not read again: the other rows stay as they are shown.
    TListView *list = frameListView1->lvMain;
    m_records.erase(list->key(row));
    std::vector<std::pair<QStringList, int>> kept;
    for (int i = 0; i < list->itemCount(); ++i) {
        if (i != row)
            kept.emplace_back(list->items().texts(i), list->key(i));
    }
    list->beginUpdate();
    list->clear();
    for (const auto &[texts, key] : kept)
        list->addItem(texts.value(0), texts.mid(1), key);
    list->endUpdate();
    list->setSelectedIndex(-1);
}

void TfrmStawkiTaryfowe::btnOkClick()
{
    const TTaryfyprzewoznikaObj *record = recordAt(frameListView1->lvMain->selectedIndex());
    if (!record)
        return;
    m_selected = *record;
    done(mrOk);
}
