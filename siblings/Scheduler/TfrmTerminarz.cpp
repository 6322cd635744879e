#include "TfrmTerminarz.h"

#include "Format.h"
#include "TframeListView.h"
#include "Reminders.h"
#include "SessionContext.h"
#include "TListView.h"

#include <QBoxLayout>
#include <QCalendarWidget>
#include <QLabel>
#include <QTextCharFormat>

namespace {

QDate firstOfMonth(QDate day)
{
    return QDate(day.year(), day.month(), 1);
}

} // namespace

TfrmTerminarz::TfrmTerminarz(QWidget *owner, Mode, int)
    : TfrmTerminarz(owner, std::make_shared<QDate>(firstOfMonth(QDate::currentDate())))
{
}

TfrmTerminarz::TfrmTerminarz(QWidget *owner, std::shared_ptr<QDate> firstDay)
    : TfrmTerminy(owner, std::make_unique<TableRegister<TTerminyObj>>(
                             Reminders::month(session().UserID, firstDay))),
      m_firstDay(std::move(firstDay))
{
    setObjectName(QStringLiteral("frmTerminarz"));
    setWindowTitle(QStringLiteral("Terminarz"));
    lblHeader->setText(QStringLiteral("Terminarz"));
    lblHeaderDescription->setText(
        QStringLiteral("Twoje terminy miesiąca: dodaj, popraw, usuń albo oznacz wykonane."));
    calTerminarz = new QCalendarWidget(pnlClient);
    calTerminarz->setObjectName(QStringLiteral("calTerminarz"));
    calTerminarz->setGridVisible(true);
    calTerminarz->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calTerminarz->setFixedWidth(300);
    if (auto *layout = qobject_cast<QBoxLayout *>(pnlClient->layout()))
        layout->insertWidget(0, calTerminarz, 0, Qt::AlignTop);
    connect(calTerminarz, &QCalendarWidget::currentPageChanged, this,
            &TfrmTerminarz::pageChanged);
    connect(calTerminarz, &QCalendarWidget::clicked, this, &TfrmTerminarz::dayClicked);
    resize(1180, 540);
}

QDate TfrmTerminarz::newReminderDay() const
{
    return calTerminarz->selectedDate();
}

void TfrmTerminarz::LoadLVData()
{
    TfrmTerminy::LoadLVData();
    markDays();
}

void TfrmTerminarz::pageChanged(int year, int month)
{
    *m_firstDay = QDate(year, month, 1);
    LoadLVData();
    UpdateControls();
}

void TfrmTerminarz::dayClicked(QDate day)
{
    const TListView *list = frameListView1->lvMain;
    const QString text = Format::date(day);
    for (int row = 0; row < list->itemCount(); ++row) {
        if (list->caption(row) == text) {
            frameListView1->lvMain->setSelectedIndex(row);
            frameListView1->lvMain->scrollToRow(row);
            break;
        }
    }
    UpdateControls();
}

void TfrmTerminarz::markDays()
{
    // An invalid date clears the formats of every day.
    calTerminarz->setDateTextFormat(QDate(), QTextCharFormat());
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    const TListView *list = frameListView1->lvMain;
    for (int row = 0; row < list->itemCount(); ++row)
        calTerminarz->setDateTextFormat(QDate::fromString(list->caption(row), Qt::ISODate), bold);
}
