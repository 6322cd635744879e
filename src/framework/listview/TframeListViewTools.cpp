// Refresh, column sum, export and system information of the frame.
#include "TframeListView.h"

#include "ColumnValues.h"
#include "FrameEvents.h"
#include "MessageService.h"
#include "SystemInfo.h"
#include "TListView.h"

#include <QClipboard>
#include <QGuiApplication>

void TframeListView::Refresh()
{
    std::vector<TListViewSelection> remembered;
    const QList<TListView *> lists = findChildren<TListView *>();
    for (const TListView *list : lists)
        remembered.push_back(
            {list->objectName().left(255), std::max(list->selectedIndex(), 0), list->tag()});

    notifyOwner(FrameEvents::ReloadLists);

    for (TListView *list : lists) {
        for (const TListViewSelection &selection : remembered) {
            if (selection.name != list->objectName())
                continue;
            if (selection.sortColumn != -1)
                sortListView(*list);
            if (list->itemCount() > selection.selected) {
                list->setSelectedIndex(selection.selected);
                list->scrollToRow(selection.selected);
            }
        }
    }
    notifyOwner(FrameEvents::SelectionChanged);
}

void TframeListView::sumColumn()
{
    MessageService &messages = MessageServices::instance();
    if (lvMain->itemCount() == 0) {
        messages.showMessage(QStringLiteral("Brak danych!"));
        return;
    }
    if (searchColumn() == -1) {
        messages.ask(QStringLiteral("Nie wybrano kolumny"),
                     QStringLiteral("Wybierz kolumnę, w której wartość ma być sumowana."),
                     MessageService::Icon::Warning, MessageService::Ok, MessageService::Ok);
        return;
    }
    const ColumnValues::Summary summary = ColumnValues::summarize(lvMain->items(), searchColumn());
    Messages::inform(summary.caption(), summary.text());
}

void TframeListView::exportToFile()
{
    MessageService &messages = MessageServices::instance();
    if (lvMain->columnCount() == 0) {
        messages.showMessage(QStringLiteral("Brak kolumn!"));
        return;
    }
    if (lvMain->itemCount() == 0) {
        messages.showMessage(QStringLiteral("Brak danych!"));
        return;
    }
    const QString path = FilePromptService::instance().saveFileName(window(), SaveDialog1);
    if (path.isEmpty())
        return;
    switch (ColumnValues::writeCsv(lvMain->items(), path)) {
    case ColumnValues::WriteResult::OpenFailed:
        messages.showMessage(QStringLiteral("Błąd otwarcia pliku (") + path + u')');
        return;
    case ColumnValues::WriteResult::WriteFailed:
        messages.showMessage(QStringLiteral("Błąd zapisu pliku (") + path + u')');
        return;
    case ColumnValues::WriteResult::Written:
        messages.showMessage(QStringLiteral("Operacja zakończona."));
        return;
    }
}

void TframeListView::showSystemInformation()
{
    const QString text = SystemInfo::text(QString::fromLatin1(window()->metaObject()->className()));
    const MessageService::Button answer = MessageServices::instance().ask(
        QStringLiteral("Informacja systemowa."), text, MessageService::Icon::Information,
        MessageService::Yes | MessageService::No, MessageService::Yes);
    if (answer == MessageService::Yes)
        QGuiApplication::clipboard()->setText(text);
}
