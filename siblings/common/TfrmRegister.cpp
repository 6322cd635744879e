#include "TfrmRegister.h"

#include "LinkButton.h"
#include "DbError.h"
#include "ReportFailures.h"
#include "TframeListView.h"
#include "MessageService.h"
#include "Privileges.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TListView.h"
#include "TfrmRecordEditor.h"

#include <QAction>
#include <QBoxLayout>
#include <QMenu>

TfrmRegister::TfrmRegister(QWidget *owner, std::unique_ptr<RegisterModel> model, Mode mode,
                           int currentKey)
    : TfrmRODefault(owner), m_model(std::move(model)), m_mode(mode), m_currentKey(currentKey)
{
    setSizeGripEnabled(true);
    setROCloseOnESC(true);
    frameListView1 = new TframeListView(this, pnlClient, QStringLiteral("frameListView1"));
    auto *layout = new QHBoxLayout(pnlClient);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(frameListView1, 1);

    TListView *list = frameListView1->lvMain;
    list->setGridLines(true);
    for (const RegisterModel::Column &column : m_model->columns()) {
        const int index = list->addColumn(column.caption, column.width);
        if (column.kind == RegisterModel::ColumnKind::Number) {
            frameListView1->numericColumns() << column.caption;
            list->setColumnAlignment(index, Qt::AlignRight | Qt::AlignVCenter);
        } else if (column.kind == RegisterModel::ColumnKind::Date) {
            frameListView1->dateColumns() << column.caption;
        }
    }

    acDodaj = new QAction(QStringLiteral("&Dodaj"), this);
    acPopraw = new QAction(QStringLiteral("&Popraw"), this);
    acUsun = new QAction(QStringLiteral("&Usuń"), this);
    acDodaj->setObjectName(QStringLiteral("acDodaj"));
    acPopraw->setObjectName(QStringLiteral("acPopraw"));
    acUsun->setObjectName(QStringLiteral("acUsun"));
    connect(acDodaj, &QAction::triggered, this, &TfrmRegister::acDodajExecute);
    connect(acPopraw, &QAction::triggered, this, &TfrmRegister::acPoprawExecute);
    connect(acUsun, &QAction::triggered, this, &TfrmRegister::acUsunExecute);
    linkButton(frameListView1->BitBtn5, acDodaj);
    linkButton(frameListView1->BitBtn4, acPopraw);
    linkButton(frameListView1->BitBtn6, acUsun);
    connect(frameListView1->BitBtn7, &QPushButton::clicked, frameListView1,
            &TframeListView::Refresh);
    frameListView1->pmMain->addSeparator();
    frameListView1->pmMain->addActions({acDodaj, acPopraw, acUsun});
    connect(list, &TListView::dblClick, this, &TfrmRegister::listDoubleClick);

    if (m_mode == Select) {
        btnOk->setText(QStringLiteral("&Wybierz"));
        btnOk->setModalResult(0);
        connect(btnOk, &TBitBtn::clicked, this, &TfrmRegister::choose);
    } else {
        btnOk->setText(QStringLiteral("&Zamknij"));
        btnCancel->hide();
    }
    resize(900, 520);
}

TfrmRegister::~TfrmRegister() = default;

void TfrmRegister::FormCreate()
{
    TfrmRODefault::FormCreate();
    frameListView1->setROSetUserID(session().UserID);
    LoadLVData();
    frameListView1->lvMain->selectByKey(m_currentKey);
    UpdateControls();
}

void TfrmRegister::LoadLVData()
{
    TListView *list = frameListView1->lvMain;
    list->beginUpdate();
    list->clear();
    if (Connection *database = session().Database) {
        RegisterModel::Filter filter;
        filter.inactiveToo = m_mode == Browse;
        filter.keep = m_currentKey;
        try {
            for (const RegisterModel::Row &row : m_model->rows(*database, filter))
                list->addItem(row.texts.value(0), row.texts.mid(1), row.key);
        } catch (const DbError &error) {
            reportFailure(QStringLiteral("Nie udało się wczytać listy."), error);
        }
    }
    list->endUpdate();
}

void TfrmRegister::UpdateControls()
{
    const bool selected = selectedKey() != 0;
    acDodaj->setEnabled(true);
    acPopraw->setEnabled(selected);
    acUsun->setEnabled(selected);
    if (m_mode == Select)
        btnOk->setEnabled(selected);
}

int TfrmRegister::selectedKey() const
{
    const TListView *list = frameListView1->lvMain;
    const int row = list->selectedIndex();
    return row < 0 ? 0 : list->key(row);
}

void TfrmRegister::reloadAndSelect(int key)
{
    LoadLVData();
    frameListView1->lvMain->selectByKey(key);
    UpdateControls();
}

int TfrmRegister::runEditor(int key)
{
    const std::unique_ptr<TfrmRecordEditor> editor = createEditor(key);
    editor->ensureCreated();
    if (!editor->found()) {
        Messages::inform(QStringLiteral("Popraw"),
                         QStringLiteral("Wybranej pozycji już nie ma: usunięto ją na innym "
                                        "stanowisku. Lista zostanie odświeżona."),
                         MessageService::Icon::Warning);
        reloadAndSelect(0);
        return 0;
    }
    return editor->showModal() == mrOk ? editor->savedKey() : 0;
}

void TfrmRegister::acDodajExecute()
{
    if (!Privileges::require(Privileges::Add, this))
        return;
    if (const int key = runEditor(0))
        reloadAndSelect(key);
}

void TfrmRegister::acPoprawExecute()
{
    const int key = selectedKey();
    if (key == 0 || !Privileges::require(Privileges::Edit, this))
        return;
    if (runEditor(key) != 0)
        reloadAndSelect(key);
}

void TfrmRegister::acUsunExecute()
{
    const int key = selectedKey();
    if (key == 0 || !Privileges::require(Privileges::Delete, this))
        return;
    if (!Messages::confirm(QStringLiteral("Usuwanie"), QStringLiteral("Usunąć wybraną pozycję")))
        return;
    RegisterModel::Deletion deletion;
    try {
        deletion = m_model->remove(*session().Database, key);
    } catch (const DbError &error) {
        reportFailure(QStringLiteral("Nie udało się usunąć wybranej pozycji; nic nie zostało "
                                     "usunięte."),
                      error);
        return;
    }
    if (deletion.outcome == RegisterModel::Deletion::Refused) {
        Messages::inform(QStringLiteral("Usuwanie"), deletion.refusal,
                         MessageService::Icon::Warning);
        return;
    }
    if (deletion.outcome == RegisterModel::Deletion::Deleted) {
        const int row = frameListView1->lvMain->selectedIndex();
        LoadLVData();
        frameListView1->lvMain->setSelectedIndex(
            std::min(row, frameListView1->lvMain->itemCount() - 1));
        UpdateControls();
    }
}

void TfrmRegister::choose()
{
    const int key = selectedKey();
    if (key == 0)
        return;
    m_chosenKey = key;
    done(mrOk);
}

void TfrmRegister::listDoubleClick()
{
    if (m_mode == Select)
        choose();
    else if (acPopraw->isEnabled())
        acPoprawExecute();
}
