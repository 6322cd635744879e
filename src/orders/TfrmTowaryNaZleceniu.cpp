#include "TfrmTowaryNaZleceniu.h"

#include "Format.h"
#include "SessionContext.h"
#include "TframeListView.h"
#include "TfrmAddEditTowaryNaZleceniu.h"

#include <QAction>
#include <QBoxLayout>
#include <QLabel>
#include <QMenu>

namespace {

const QString Category = QStringLiteral("Towary");

QAction *goodsAction(const QString &caption, const QString &name, QObject *parent)
{
    auto *action = new QAction(caption, parent);
    action->setObjectName(name);
    action->setProperty("category", Category);
    return action;
}

} // namespace

TfrmTowaryNaZleceniu::TfrmTowaryNaZleceniu(QWidget *owner, int orderKey)
    : TfrmRODefault(owner), m_orderKey(orderKey)
{
    setObjectName(QStringLiteral("frmTowaryNaZleceniu"));
    const QString title = QStringLiteral("Towary dotyczące zlecenia");
    setWindowTitle(title);
    lblHeader->setText(title);
    btnOk->setText(QStringLiteral("&Zamknij"));
    btnCancel->hide();
    setSizeGripEnabled(true);

    frameListView1 = new TframeListView(this, pnlClient, QStringLiteral("frameListView1"));
    auto *layout = new QVBoxLayout(pnlClient);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(frameListView1);
    TListView *list = frameListView1->lvMain;
    list->addColumn(QStringLiteral("Nazwa"), 200);
    list->addColumn(QStringLiteral("ADR"), 60);
    list->addColumn(QStringLiteral("Ilość deklarowana"), 110);
    list->addColumn(QStringLiteral("Ilość rzeczywista"), 110);
    list->addColumn(QStringLiteral("Dodatkowy opis"), 120);
    for (int quantity : {2, 3})
        list->setColumnAlignment(quantity, Qt::AlignRight | Qt::AlignVCenter);
    frameListView1->numericColumns() << QStringLiteral("Ilość deklarowana")
                                     << QStringLiteral("Ilość rzeczywista");

    acAdd = goodsAction(QStringLiteral("&Dodaj"), QStringLiteral("acAdd"), this);
    acPopraw = goodsAction(QStringLiteral("&Popraw"), QStringLiteral("acPopraw"), this);
    acDelete = goodsAction(QStringLiteral("&Usuń"), QStringLiteral("acDelete"), this);
    connect(acAdd, &QAction::triggered, this, &TfrmTowaryNaZleceniu::acAddExecute);
    connect(acPopraw, &QAction::triggered, this, &TfrmTowaryNaZleceniu::acPoprawExecute);
    connect(acDelete, &QAction::triggered, this, &TfrmTowaryNaZleceniu::acDeleteExecute);
    connect(frameListView1->BitBtn5, &TBitBtn::clicked, acAdd, &QAction::trigger);
    connect(frameListView1->BitBtn4, &TBitBtn::clicked, acPopraw, &QAction::trigger);
    connect(frameListView1->BitBtn6, &TBitBtn::clicked, acDelete, &QAction::trigger);
    connect(frameListView1->BitBtn7, &TBitBtn::clicked, frameListView1, &TframeListView::Refresh);
    connect(list, &TListView::dblClick, acPopraw, &QAction::trigger);
    resize(820, 420);
}

void TfrmTowaryNaZleceniu::FormCreate()
{
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
    frameListView1->setROSetUserID(session().UserID);
    QMenu *menu = frameListView1->pmMain;
    QAction *first = menu->actions().value(0);
    menu->insertActions(first, {acAdd, acPopraw, acDelete});
    menu->insertSeparator(first);
    LoadLVData();
    UpdateControls();
}

void TfrmTowaryNaZleceniu::LoadLVData()
{
    Connection *database = session().Database;
    TListView *list = frameListView1->lvMain;
    list->beginUpdate();
    list->clear();
    m_goods.clear();
    if (database)
        m_goods = TTowaryObj(*database).SelectWhere(QStringLiteral("ID_ZLECENIA"), opEqual,
                                                     m_orderKey);
    for (const TTowaryObj &goods : m_goods) {
        list->addItem(goods.NAZWA,
                      {goods.NUMER1, Format::number(goods.ILOSC_DEKLAROWANA, u"#,##0.00"),
                       Format::number(goods.ILOSC, u"#,##0.00"), goods.NUMER2},
                      goods.ID_TOWARU);
    }
    list->endUpdate();
}

void TfrmTowaryNaZleceniu::UpdateControls()
{
    const bool selected = frameListView1->lvMain->selectedIndex() >= 0;
    acPopraw->setEnabled(selected);
    acDelete->setEnabled(selected);
    frameListView1->BitBtn4->setEnabled(selected);
    frameListView1->BitBtn6->setEnabled(selected);
}

const TTowaryObj *TfrmTowaryNaZleceniu::selectedGoods() const
{
    const TListView *list = frameListView1->lvMain;
    const int row = list->selectedIndex();
    if (row < 0)
        return nullptr;
    const int key = list->key(row);
    for (const TTowaryObj &goods : m_goods) {
        if (goods.ID_TOWARU == key)
            return &goods;
    }
    return nullptr;
}

void TfrmTowaryNaZleceniu::editGoods(const TTowaryObj &goods, int mode)
{
    auto editor = TfrmRODefault::create<TfrmAddEditTowaryNaZleceniu>(this, goods, mode);
    editor->showModal();
    frameListView1->Refresh();
}

void TfrmTowaryNaZleceniu::acAddExecute()
{
    Connection *database = session().Database;
    if (!database)
        return;
    TTowaryObj goods(*database);
    goods.ID_ZLECENIA = m_orderKey;
    editGoods(goods, TfrmAddEditTowaryNaZleceniu::Add);
}

void TfrmTowaryNaZleceniu::acPoprawExecute()
{
    if (const TTowaryObj *goods = selectedGoods())
        editGoods(*goods, TfrmAddEditTowaryNaZleceniu::Edit);
}

void TfrmTowaryNaZleceniu::acDeleteExecute()
{
    if (const TTowaryObj *goods = selectedGoods()) {
        TTowaryObj doomed = *goods;
        doomed.Delete();
        frameListView1->Refresh();
    }
}
