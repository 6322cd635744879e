#include "TfrmCennikWierszeKolumny.h"

#include "MessageService.h"
#include "NamedButton.h"
#include "PriceGroups.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TListView.h"
#include "TfrmAddEditCennikWierszeKolumny.h"
#include "TfrmAddEditGrupy.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace {

const QString DeletionCaption = QStringLiteral("Usuwanie");

Connection *database()
{
    return session().Database;
}

// The key of the selected item; 0 when nothing is selected.
int selectedKey(const TListView *list)
{
    const int row = list->selectedIndex();
    return row < 0 ? 0 : list->key(row);
}

// A range or group used by a cell is refused; otherwise the user is asked.
template <class CountUses>
bool mayDelete(const QString &failure, CountUses &&countUses, const QString &refusal,
               const QString &question)
{
    int used = 0;
    if (!reportFailures(failure, [&] { used = countUses(); }))
        return false;
    if (used >= 1) {
        Messages::inform(DeletionCaption, refusal);
        return false;
    }
    return Messages::confirm(DeletionCaption, question);
}

} // namespace

TfrmCennikWierszeKolumny::TfrmCennikWierszeKolumny(QWidget *owner) : TfrmRODefault(owner)
{
    setObjectName(QStringLiteral("frmCennikWierszeKolumny"));
    setWindowTitle(QStringLiteral("Edycja wierszy i kolumn"));
    lblHeader->setText(QStringLiteral("Edycja wierszy i kolumn"));
    lblHeaderDescription->setText(QStringLiteral("Cenniki"));
    btnOk->hide();
    btnCancel->setText(QStringLiteral("&Zamknij"));

    PageControl1 = new QTabWidget(pnlClient);
    PageControl1->setObjectName(QStringLiteral("PageControl1"));
    const QStringList rangeColumns{QStringLiteral("Zakres od"), QStringLiteral("Zakres do")};
    tsKilometry = buildPage(QStringLiteral("Kilometry"), QStringLiteral("tsKilometry"), lvWiersze,
                            rangeColumns,
                            {{QStringLiteral("&Dodaj"), QStringLiteral("btnDodajWiersz"),
                              &btnDodajWiersz},
                             {QStringLiteral("&Popraw"), QStringLiteral("btnPoprawWiersz"),
                              &btnPoprawWiersz},
                             {QStringLiteral("&Usuń"), QStringLiteral("btnUsunWiersz"),
                              &btnUsunWiersz}});
    tsKilogramy = buildPage(
        QStringLiteral("Kilogramy"), QStringLiteral("tsKilogramy"), lvKolumny, rangeColumns,
        {{QStringLiteral("Dodaj"), QStringLiteral("btnDodajKolumne"), &btnDodajKolumne},
         {QStringLiteral("Popraw"), QStringLiteral("btnPoprawKolumne"), &btnPoprawKolumne},
         {QStringLiteral("Usuń"), QStringLiteral("btnUsunKolumne"), &btnUsunKolumne}});
    tsGrupy = buildPage(
        QStringLiteral("Grupy"), QStringLiteral("tsGrupy"), lvGrupy,
        {QStringLiteral("Nazwa"), QStringLiteral("Blokada")},
        {{QStringLiteral("Dodaj"), QStringLiteral("btnDodajGrupe"), &btnDodajGrupe},
         {QStringLiteral("Popraw"), QStringLiteral("btnPoprawGrupe"), &btnPoprawGrupe},
         {QStringLiteral("Usuń"), QStringLiteral("btnUsunGrupe"), &btnUsunGrupe}});
    lvWiersze->setObjectName(QStringLiteral("lvWiersze"));
    lvKolumny->setObjectName(QStringLiteral("lvKolumny"));
    lvGrupy->setObjectName(QStringLiteral("lvGrupy"));
    lvGrupy->setColumnWidth(0, 220);
    auto *layout = new QVBoxLayout(pnlClient);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(PageControl1);

    for (const RangeAxis axis : {RangeAxis::Kilometres, RangeAxis::Kilograms}) {
        QPushButton *add = axis == RangeAxis::Kilometres ? btnDodajWiersz : btnDodajKolumne;
        QPushButton *edit = axis == RangeAxis::Kilometres ? btnPoprawWiersz : btnPoprawKolumne;
        QPushButton *remove = axis == RangeAxis::Kilometres ? btnUsunWiersz : btnUsunKolumne;
        connect(add, &QPushButton::clicked, this, [this, axis] { addRange(axis); });
        connect(edit, &QPushButton::clicked, this, [this, axis] { editRange(axis); });
        connect(remove, &QPushButton::clicked, this, [this, axis] { deleteRange(axis); });
        connect(rangeList(axis), &TListView::dblClick, this, [this, axis] { editRange(axis); });
    }
    connect(btnDodajGrupe, &QPushButton::clicked, this, &TfrmCennikWierszeKolumny::addGroup);
    connect(btnPoprawGrupe, &QPushButton::clicked, this, &TfrmCennikWierszeKolumny::editGroup);
    connect(btnUsunGrupe, &QPushButton::clicked, this, &TfrmCennikWierszeKolumny::deleteGroup);
    connect(lvGrupy, &TListView::dblClick, this, &TfrmCennikWierszeKolumny::editGroup);
    resize(520, 460);
}

QWidget *TfrmCennikWierszeKolumny::buildPage(const QString &title, const QString &name,
                                             TListView *&list, const QStringList &columns,
                                             std::initializer_list<PageButton> buttons)
{
    auto *page = new QWidget(PageControl1);
    page->setObjectName(name);
    list = new TListView(page);
    for (const QString &caption : columns)
        list->addColumn(caption, 120);
    auto *buttonRow = new QHBoxLayout;
    for (const PageButton &button : buttons) {
        *button.button = namedButton(button.caption, button.name, page);
        buttonRow->addWidget(*button.button);
    }
    buttonRow->addStretch(1);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(list, 1);
    layout->addLayout(buttonRow);
    PageControl1->addTab(page, title);
    return page;
}

TListView *TfrmCennikWierszeKolumny::rangeList(RangeAxis axis) const
{
    return axis == RangeAxis::Kilometres ? lvWiersze : lvKolumny;
}

void TfrmCennikWierszeKolumny::FormCreate()
{
    TfrmRODefault::FormCreate();
    LoadLVData();
}

void TfrmCennikWierszeKolumny::LoadLVData()
{
    fillRanges(RangeAxis::Kilometres);
    fillRanges(RangeAxis::Kilograms);
    fillGroups();
}

void TfrmCennikWierszeKolumny::fillRanges(RangeAxis axis)
{
    TListView *list = rangeList(axis);
    list->beginUpdate();
    list->clear();
    if (Connection *db = database()) {
        reportFailures(QStringLiteral("Nie można odczytać przedziałów"), [&] {
            for (const PriceRange &range :
                 PriceRanges::list(*db, axis, PriceRanges::editorListing(axis)))
                list->addItem(QString::number(range.from), {QString::number(range.to)}, range.key);
        });
    }
    list->endUpdate();
}

void TfrmCennikWierszeKolumny::fillGroups()
{
    lvGrupy->beginUpdate();
    lvGrupy->clear();
    if (Connection *db = database()) {
        reportFailures(QStringLiteral("Nie można odczytać grup cenników"), [&] {
            for (const PriceGroup &group : PriceGroups::list(*db))
                lvGrupy->addItem(group.name, {group.blocked ? QStringLiteral("T") : QString()},
                                 group.key);
        });
    }
    lvGrupy->endUpdate();
}

void TfrmCennikWierszeKolumny::showKey(TListView *list, int key)
{
    list->selectByKey(key);
    list->setFocus();
}

void TfrmCennikWierszeKolumny::addRange(RangeAxis axis)
{
    Connection *db = database();
    if (!db)
        return;
    auto dialog = TfrmRODefault::create<TfrmAddEditCennikWierszeKolumny>(
        this, 0, PriceRanges::duplicateTest(axis), PriceRanges::unit(axis));
    if (dialog->showModal() != mrOk)
        return;
    int key = 0;
    reportFailures(QStringLiteral("Nie można dodać przedziału"),
                [&] { key = PriceRanges::add(*db, axis, dialog->value()); });
    fillRanges(axis);
    showKey(rangeList(axis), key);
}

void TfrmCennikWierszeKolumny::editRange(RangeAxis axis)
{
    Connection *db = database();
    TListView *list = rangeList(axis);
    const int key = selectedKey(list);
    if (!db || key == 0)
        return;
    int upperBound = 0;
    if (!reportFailures(QStringLiteral("Nie można odczytać przedziału"),
                     [&] { upperBound = PriceRanges::load(*db, axis, key).to; }))
        return;
    auto dialog = TfrmRODefault::create<TfrmAddEditCennikWierszeKolumny>(
        this, upperBound, PriceRanges::duplicateTest(axis, key), PriceRanges::unit(axis));
    if (dialog->showModal() != mrOk)
        return;
    reportFailures(QStringLiteral("Nie można poprawić przedziału"),
                [&] { PriceRanges::change(*db, axis, key, dialog->value()); });
    fillRanges(axis);
    showKey(list, key);
}

void TfrmCennikWierszeKolumny::deleteRange(RangeAxis axis)
{
    Connection *db = database();
    const int key = selectedKey(rangeList(axis));
    if (!db || key == 0)
        return;
    if (!mayDelete(QStringLiteral("Nie można sprawdzić użycia przedziału"),
                   [&] { return PriceRanges::usage(*db, axis, key); },
                   QStringLiteral("Nie można usunąć pozycji, gdyż jest ona używana w "
                                  "cennikach! "),
                   QStringLiteral("Czy na pewno usunąć pozycję?")))
        return;
    reportFailures(QStringLiteral("Nie można usunąć przedziału"),
                [&] { PriceRanges::remove(*db, axis, key); });
    fillRanges(axis);
}

void TfrmCennikWierszeKolumny::addGroup()
{
    Connection *db = database();
    if (!db)
        return;
    auto dialog = TfrmRODefault::create<TfrmAddEditGrupy>(this);
    if (dialog->showModal() != mrOk)
        return;
    const int key = PriceGroups::add(*db, dialog->name(), dialog->blocked());
    fillGroups();
    showKey(lvGrupy, key);
}

void TfrmCennikWierszeKolumny::editGroup()
{
    Connection *db = database();
    const int key = selectedKey(lvGrupy);
    if (!db || key == 0)
        return;
    const PriceGroup group = PriceGroups::load(*db, key);
    auto dialog = TfrmRODefault::create<TfrmAddEditGrupy>(this, group.name, group.blocked);
    if (dialog->showModal() != mrOk)
        return;
    PriceGroups::change(*db, group.key, dialog->name(), dialog->blocked());
    fillGroups();
    showKey(lvGrupy, group.key);
}

void TfrmCennikWierszeKolumny::deleteGroup()
{
    Connection *db = database();
    const int key = selectedKey(lvGrupy);
    if (!db || key == 0)
        return;
    if (!mayDelete(QStringLiteral("Nie można sprawdzić, czy grupa jest używana w cennikach"),
                   [&] { return PriceGroups::usage(*db, key); },
                   QStringLiteral("Nie można usunąć grupy, gdyż jest ona używana w "
                                  "cennikach! "),
                   QStringLiteral("Czy na pewno usunąć grupę?")))
        return;
    PriceGroups::remove(*db, key);
    fillGroups();
}
