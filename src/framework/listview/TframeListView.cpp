#include "TframeListView.h"

#include "FrameEvents.h"
#include "NamedButton.h"
#include "TBitBtn.h"
#include "TImageList.h"
#include "TListView.h"
#include "TRadioGroup.h"
#include "TSearchPanel.h"

#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QTimer>

#include <algorithm>

namespace {

int &sharedSearchColumn()
{
    static int column = -1;
    return column;
}

constexpr QSize ImageSize(20, 20);
// Room the search box keeps, in average characters, when the frame is narrow.
constexpr int SearchBoxCharacters = 25;

} // namespace

TframeListView::TframeListView(QWidget *owner, QWidget *parent, const QString &name)
    : QFrame(parent ? parent : owner), m_owner(owner), m_timer(new QTimer(this))
{
    setObjectName(name);
    buildLayout();
    buildPopupMenu();
    connectSignals();
}

TframeListView::~TframeListView() = default;

int TframeListView::searchColumn()
{
    return sharedSearchColumn();
}

void TframeListView::setSearchColumn(int column)
{
    sharedSearchColumn() = column;
}

void TframeListView::buildLayout()
{
    pnlSearch = new TSearchPanel(this);
    pnlSearch->setObjectName(QStringLiteral("pnlSearch"));

    QWidget *top = pnlSearch->topRow();
    Label1 = new QLabel(QStringLiteral("&Szukaj:"), top);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setStyleSheet(QStringLiteral("color: blue;"));
    edSearch = new QLineEdit(top);
    edSearch->setObjectName(QStringLiteral("edSearch"));
    edSearch->setStyleSheet(QStringLiteral("background-color: #ffffe1; color: blue;"));
    Label1->setBuddy(edSearch);
    btnOpcje = namedButton(QStringLiteral("Opcje"), QStringLiteral("btnOpcje"), top);
    btnUnBold = namedButton(QStringLiteral("Pogrubienie"), QStringLiteral("btnUnBold"), top);
    btnUnBold->hide();
    BitBtn1 = TBitBtn::create(QStringLiteral("Sumuj kolumnę"), QStringLiteral("BitBtn1"), top);
    BitBtn2 = TBitBtn::create(QStringLiteral("Export do pliku"), QStringLiteral("BitBtn2"), top);
    BitBtn5 = TBitBtn::create(QStringLiteral("&Dodaj"), QStringLiteral("BitBtn5"), top);
    BitBtn4 = TBitBtn::create(QStringLiteral("&Popraw"), QStringLiteral("BitBtn4"), top);
    BitBtn6 = TBitBtn::create(QStringLiteral("&Usuń"), QStringLiteral("BitBtn6"), top);
    BitBtn7 = TBitBtn::create(QStringLiteral("&Odśwież"), QStringLiteral("BitBtn7"), top);
    auto *topLayout = new QHBoxLayout(top);
    topLayout->setContentsMargins(6, 4, 6, 4);
    topLayout->addWidget(Label1);
    topLayout->addWidget(edSearch, 1);
    const std::initializer_list<QPushButton *> topButtons{
        btnOpcje, btnUnBold, BitBtn1, BitBtn2, BitBtn5, BitBtn4, BitBtn6, BitBtn7};
    for (QPushButton *button : topButtons)
        topLayout->addWidget(button);
    fitSearchRow();

    QWidget *expanded = pnlSearch->expandedPart();
    btnSearch = namedButton(QStringLiteral("S&zukaj"), QStringLiteral("btnSearch"), expanded);
    rgSearchOptions = new TRadioGroup({QStringLiteral("Zawiera szukaną"),
                                       QStringLiteral("Jest równa szukanej"),
                                       QStringLiteral("Zaczyna się od szukanej")},
                                      3, expanded);
    rgSearchOptions->setObjectName(QStringLiteral("rgSearchOptions"));
    rgSearchOptions->setItemIndex(Contains);
    acCaseSensitive = new QAction(QStringLiteral("Ignoruj wielkość liter"), this);
    acCaseSensitive->setObjectName(QStringLiteral("acCaseSensitive"));
    acCaseSensitive->setCheckable(true);
    acCaseSensitive->setChecked(true);
    acSearchOnKey = new QAction(QStringLiteral("Szukaj w trakcie wprowadzania liter"), this);
    acSearchOnKey->setObjectName(QStringLiteral("acSearchOnKey"));
    acSearchOnKey->setCheckable(true);
    acSearchOnKey->setChecked(true);
    cbCaseSensitive = new QCheckBox(acCaseSensitive->text(), expanded);
    cbCaseSensitive->setObjectName(QStringLiteral("cbCaseSensitive"));
    cbCaseSensitive->setChecked(true);
    cbSearchOnKey = new QCheckBox(acSearchOnKey->text(), expanded);
    cbSearchOnKey->setObjectName(QStringLiteral("cbSearchOnKey"));
    cbSearchOnKey->setChecked(true);
    BitBtn3
        = TBitBtn::create(QStringLiteral("Informacje systemowe"), QStringLiteral("BitBtn3"), expanded);
    auto *checks = new QVBoxLayout;
    checks->setSpacing(0);
    checks->addWidget(cbCaseSensitive);
    checks->addWidget(cbSearchOnKey);
    auto *expandedLayout = new QHBoxLayout(expanded);
    expandedLayout->setContentsMargins(6, 0, 6, 4);
    expandedLayout->addWidget(btnSearch);
    expandedLayout->addWidget(rgSearchOptions);
    expandedLayout->addLayout(checks);
    expandedLayout->addStretch(1);
    expandedLayout->addWidget(BitBtn3);

    lvImages = new TImageList(ImageSize, this);
    lvImages->setObjectName(QStringLiteral("lvImages"));
    lvImages->add(TImageList::sortMark(ImageSize));
    lvMain = new TListView(this);
    lvMain->setObjectName(QStringLiteral("lvMain"));
    lvMain->setFrameShape(QFrame::NoFrame);
    lvMain->setSmallImages(lvImages);
    lvMain->items().setBoldColumnSource(&TframeListView::searchColumn);
    lvMain->setMouseTracking(true);
    lvMain->setContextMenuPolicy(Qt::CustomContextMenu);
    QPalette colours = lvMain->palette();
    colours.setColor(QPalette::Base, Qt::white);
    lvMain->setPalette(colours);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(pnlSearch);
    layout->addWidget(lvMain, 1);

    SaveDialog1
        = FilePrompt{QString(), QString(), QStringLiteral("Pliki CSV|*.csv|Wszystkie pliki|*.*"),
                     QStringLiteral("*.csv")};
}

void TframeListView::connectSignals()
{
    connect(btnSearch, &QPushButton::clicked, this, &TframeListView::btnSearchClick);
    connect(btnOpcje, &QPushButton::clicked, this, &TframeListView::toggleSearchPanel);
    connect(btnUnBold, &QPushButton::clicked, this, &TframeListView::clearSearchColumn);
    connect(BitBtn1, &QPushButton::clicked, this, &TframeListView::sumColumn);
    connect(BitBtn2, &QPushButton::clicked, this, &TframeListView::exportToFile);
    connect(BitBtn3, &QPushButton::clicked, this, &TframeListView::showSystemInformation);

    // The check boxes show the actions' state and change it.
    connect(cbCaseSensitive, &QCheckBox::toggled, acCaseSensitive, &QAction::setChecked);
    connect(acCaseSensitive, &QAction::toggled, cbCaseSensitive, &QCheckBox::setChecked);
    connect(cbSearchOnKey, &QCheckBox::toggled, acSearchOnKey, &QAction::setChecked);
    connect(acSearchOnKey, &QAction::toggled, cbSearchOnKey, &QCheckBox::setChecked);

    connect(lvMain->header(), &QHeaderView::sectionClicked, this,
            &TframeListView::sortByColumnClick);
    connect(lvMain, &TListView::clicked, this,
            [this] { notifyOwner(FrameEvents::SelectionChanged); });
    connect(lvMain->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { notifyOwner(FrameEvents::SelectionChanged); });
    connect(lvMain->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { notifyOwner(FrameEvents::SelectionChanged); });
    connect(lvMain, &TListView::entered, this,
            [this] { lvMain->viewport()->setCursor(Qt::PointingHandCursor); });
    connect(lvMain, &TListView::viewportEntered, this,
            [this] { lvMain->viewport()->unsetCursor(); });
    connect(lvMain, &TListView::customContextMenuRequested, this,
            [this](const QPoint &at) { pmMain->popup(lvMain->viewport()->mapToGlobal(at)); });
    connect(m_timer, &QTimer::timeout, this, &TframeListView::Refresh);

    edSearch->installEventFilter(this);
    lvMain->installEventFilter(this);
}

bool TframeListView::event(QEvent *event)
{
    if (event->type() == FrameEvents::BuildMenus) {
        buildMenus();
        return true;
    }
    if (event->type() == FrameEvents::SaveSettings) {
        saveSettings();
        return true;
    }
    return QFrame::event(event);
}

void TframeListView::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (pnlSearch
        && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange))
        fitSearchRow();
}

void TframeListView::fitSearchRow()
{
    // In a narrow window the buttons of the search row give up their
    // spare width before the search box gets too small to type into.
    const int frame = style()->pixelMetric(QStyle::PM_ButtonMargin)
        + style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    for (QPushButton *button : pnlSearch->topRow()->findChildren<QPushButton *>()) {
        QString caption = button->text();
        caption.remove(QLatin1Char('&'));
        const int captionWidth = button->fontMetrics().horizontalAdvance(caption) + 2 * frame;
        button->setMinimumWidth(std::min(captionWidth, button->sizeHint().width()));
    }
    edSearch->setMinimumWidth(edSearch->fontMetrics().averageCharWidth() * SearchBoxCharacters);
}

bool TframeListView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != edSearch && watched != lvMain)
        return QFrame::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if ((key->modifiers() & Qt::ControlModifier) && key->key() >= Qt::Key_1
            && key->key() <= Qt::Key_9)
            return handleColumnShortcut(key->key() - Qt::Key_0);
        // Enter would otherwise reach the dialog and press its default button.
        if (enter) {
            if (watched == lvMain)
                Q_EMIT lvMain->dblClick();
            return true;
        }
        if (watched == lvMain && key->key() == Qt::Key_F5) {
            Refresh();
            return true;
        }
        return false;
    }
    if (event->type() == QEvent::KeyRelease) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->isAutoRepeat())
            return false;
        if (watched == edSearch) {
            searchKeyUp(key->key());
            return true;
        }
        notifyOwner(FrameEvents::SelectionChanged);
    }
    return false;
}

bool TframeListView::handleColumnShortcut(int digit)
{
    if (digit < 1 || digit > lvMain->visibleColumnCount())
        return false;
    // Hidden columns are skipped among those up to the digit's own column.
    int column = digit - 1;
    const int last = column;
    for (int i = 0; i <= last; ++i) {
        if (lvMain->columnWidth(i) == 0)
            ++column;
    }
    setSearchColumn(column);
    repaintList();
    return true;
}

void TframeListView::setROAutoListViewUpdate(bool on)
{
    m_autoListViewUpdate = on;
    if (on && m_refreshTime > 0) {
        m_timer->setInterval(m_refreshTime * 1000);
        m_timer->start();
    } else {
        m_timer->stop();
    }
    notifyOwner(FrameEvents::ReloadLists);
}

void TframeListView::setROSetUserID(int userId)
{
    m_userId = userId;
    loadSettings();
}

void TframeListView::notifyOwner(int type) const
{
    FrameEvents::send(m_owner, static_cast<QEvent::Type>(type));
}

void TframeListView::repaintList()
{
    lvMain->repaintRows();
}

QString TframeListView::ownerClassName() const
{
    if (!m_ownerClass.isEmpty())
        return m_ownerClass;
    return m_owner ? QString::fromLatin1(m_owner->metaObject()->className()) : QString();
}

void TframeListView::toggleSearchPanel()
{
    pnlSearch->toggle();
}
