// The frame's context menu and its settings.
#include "TframeListView.h"

#include "TListView.h"
#include "TRadioGroup.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QSettings>

namespace {

constexpr int RestoredWidth = 100;

QString columnValueName(int column)
{
    return QStringLiteral("Column") + QString::number(column);
}

QAction *radioItem(QMenu *menu, QActionGroup *group, const QString &caption)
{
    QAction *action = menu->addAction(caption);
    action->setCheckable(true);
    group->addAction(action);
    return action;
}

} // namespace

void TframeListView::buildPopupMenu()
{
    pmMain = new QMenu(this);
    pmMain->setObjectName(QStringLiteral("pmMain"));
    m_searchColumnMenu = pmMain->addMenu(QStringLiteral("Szukaj według kolumny"));
    m_sortMenu = pmMain->addMenu(QStringLiteral("Sortuj"));
    m_hideMenu = pmMain->addMenu(QStringLiteral("Ukryj kolumny"));
    m_searchColumnGroup = new QActionGroup(this);
    m_sortGroup = new QActionGroup(this);

    QMenu *options = pmMain->addMenu(QStringLiteral("Opcje szukania"));
    auto *optionGroup = new QActionGroup(this);
    m_optionContains
        = radioItem(options, optionGroup, QStringLiteral("Wartość w kolumnie zawiera szukaną"));
    m_optionEquals
        = radioItem(options, optionGroup, QStringLiteral("Wartość w kolumnie jest równa szukanej"));
    m_optionStartsWith = radioItem(options, optionGroup,
                                   QStringLiteral("Wartość w kolumnie zaczyna się od szukanej"));
    m_optionEquals->setChecked(true);
    options->addSeparator();
    options->addAction(acCaseSensitive);
    options->addAction(acSearchOnKey);
    connect(m_optionContains, &QAction::triggered, this,
            [this] { rgSearchOptions->setItemIndex(Contains); });
    connect(m_optionEquals, &QAction::triggered, this,
            [this] { rgSearchOptions->setItemIndex(Equals); });
    connect(m_optionStartsWith, &QAction::triggered, this,
            [this] { rgSearchOptions->setItemIndex(StartsWith); });
    // Whichever button the user clicks, the menu marks the first option.
    connect(rgSearchOptions, &TRadioGroup::clicked, this,
            [this] { m_optionContains->setChecked(true); });

    pmMain->addSeparator();
    QAction *refresh = pmMain->addAction(QStringLiteral("&Odśwież"));
    refresh->setShortcut(QKeySequence(Qt::Key_F5));
    connect(refresh, &QAction::triggered, this, &TframeListView::Refresh);
}

void TframeListView::buildMenus()
{
    m_ownerClass = ownerClassName();
    m_searchColumnMenu->clear();
    m_sortMenu->clear();
    m_hideMenu->clear();
    m_hideActions.clear();

    const QString none = QStringLiteral("[Brak]");
    QAction *noSearchColumn = radioItem(m_searchColumnMenu, m_searchColumnGroup, none);
    connect(noSearchColumn, &QAction::triggered, this, &TframeListView::clearSearchColumn);
    QAction *noSort = radioItem(m_sortMenu, m_sortGroup, none);
    connect(noSort, &QAction::triggered, this, [this] {
        lvMain->setTag(-1);
        Refresh();
        lvMain->clearColumnImages();
    });
    connect(m_hideMenu->addAction(none), &QAction::triggered, this,
            &TframeListView::showAllColumns);

    for (int column = 0; column < lvMain->columnCount(); ++column) {
        const QString caption = lvMain->columnCaption(column);
        QAction *search = radioItem(m_searchColumnMenu, m_searchColumnGroup, caption);
        // Shown as a hint; the keys themselves are handled by the search
        // box and the list, which skip hidden columns.
        search->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + column)));
        search->setShortcutVisibleInContextMenu(true);
        connect(search, &QAction::triggered, this, [this, column] {
            setSearchColumn(column);
            repaintList();
        });

        QAction *sort = radioItem(m_sortMenu, m_sortGroup, caption);
        connect(sort, &QAction::triggered, this, [this, column] {
            lvMain->setTag(column);
            repaintList();
            markSortColumn(column);
            sortList();
        });

        QAction *hide = m_hideMenu->addAction(caption);
        hide->setCheckable(true);
        connect(hide, &QAction::triggered, this,
                [this, column](bool checked) { hideColumn(column, checked); });
        m_hideActions.push_back(hide);

        lvMain->setColumnTag(column, lvMain->columnWidth(column));
    }
    loadSettings();
}

void TframeListView::clearSearchColumn()
{
    if (!m_searchColumnGroup->actions().isEmpty())
        m_searchColumnGroup->actions().constFirst()->setChecked(true);
    setSearchColumn(-1);
    repaintList();
}

void TframeListView::hideColumn(int column, bool hide)
{
    if (hide) {
        lvMain->setColumnTag(column, lvMain->columnWidth(column));
        lvMain->setColumnWidth(column, 0);
        return;
    }
    if (lvMain->columnTag(column) == 0)
        lvMain->setColumnTag(column, RestoredWidth);
    lvMain->setColumnWidth(column, lvMain->columnTag(column));
}

void TframeListView::showAllColumns()
{
    for (int column = 0; column < lvMain->columnCount(); ++column) {
        if (lvMain->columnTag(column) == 0)
            lvMain->setColumnTag(column, RestoredWidth);
        lvMain->setColumnWidth(column, lvMain->columnTag(column));
    }
    for (QAction *hide : m_hideActions)
        hide->setChecked(false);
}

QString TframeListView::settingsGroup() const
{
    return QString::number(m_userId) + u'/' + ownerClassName() + u'/' + objectName();
}

void TframeListView::loadSettings()
{
    QSettings settings(QStringLiteral("Kelvaro"));
    settings.beginGroup(settingsGroup());
    for (int column = 0; column < lvMain->columnCount(); ++column) {
        const QString name = columnValueName(column);
        if (!settings.contains(name))
            continue;
        bool ok = false;
        const int width = settings.value(name).toInt(&ok);
        if (!ok || width < 0)
            continue;
        lvMain->setColumnWidth(column, width);
        lvMain->setColumnTag(column, width);
        if (width == 0 && column < static_cast<int>(m_hideActions.size()))
            m_hideActions[column]->setChecked(true);
    }
    if (settings.contains(QStringLiteral("CaseSensitive")))
        acCaseSensitive->setChecked(settings.value(QStringLiteral("CaseSensitive")).toBool());
    if (settings.contains(QStringLiteral("SearchOnKey")))
        acSearchOnKey->setChecked(settings.value(QStringLiteral("SearchOnKey")).toBool());
    if (settings.contains(QStringLiteral("SearchOption"))) {
        const int option = settings.value(QStringLiteral("SearchOption")).toInt();
        if (option >= Contains && option <= StartsWith)
            rgSearchOptions->setItemIndex(option);
    }
}

void TframeListView::saveSettings()
{
    QSettings settings(QStringLiteral("Kelvaro"));
    settings.beginGroup(settingsGroup());
    for (int column = 0; column < lvMain->columnCount(); ++column)
        settings.setValue(columnValueName(column), lvMain->columnWidth(column));
    settings.setValue(QStringLiteral("CaseSensitive"), acCaseSensitive->isChecked());
    settings.setValue(QStringLiteral("SearchOnKey"), acSearchOnKey->isChecked());
    settings.setValue(QStringLiteral("SearchOption"), rgSearchOptions->itemIndex());
}
