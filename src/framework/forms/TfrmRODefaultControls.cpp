// How TfrmRODefault finishes a form: font, header, the author checks and
// the set-up of each kind of control.
#include "TahomaFont.h"
#include "TfrmRODefault.h"

#include "MessageService.h"
#include "TBitBtn.h"
#include "TListView.h"
#include "TNumberEdit.h"
#include "TframeListView.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QSpinBox>
#include <QToolButton>

namespace {

// QLineEdit's own "no limit".
constexpr int UnlimitedLength = 32767;

const QString FlatFrame = QStringLiteral("border: 1px solid palette(dark);");
const QString FlatComboFrame =
    QStringLiteral("QComboBox { border: 1px solid palette(button-text); padding: 1px; }");

bool isPushOrSpeedButton(const QWidget *widget)
{
    return qobject_cast<const QPushButton *>(widget) || qobject_cast<const QToolButton *>(widget);
}

bool isPartOfCompoundControl(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    return qobject_cast<const QComboBox *>(parent)
        || qobject_cast<const QAbstractSpinBox *>(parent);
}

QChar acceleratorLetter(const QString &caption)
{
    const qsizetype ampersand = caption.indexOf(u'&');
    if (ampersand < 0 || ampersand + 1 >= caption.size())
        return QChar();
    return caption[ampersand + 1].toUpper();
}

void collectOwnWidgets(const QObject *parent, QList<QWidget *> &widgets)
{
    for (QObject *child : parent->children()) {
        auto *widget = qobject_cast<QWidget *>(child);
        if (!widget)
            continue;
        widgets.append(widget);
        if (!qobject_cast<TframeListView *>(widget))
            collectOwnWidgets(widget, widgets);
    }
}

} // namespace

QList<QWidget *> TfrmRODefault::ownWidgets() const
{
    QList<QWidget *> widgets;
    collectOwnWidgets(this, widgets);
    return widgets;
}

void TfrmRODefault::FormCreate()
{
    setFont(tahomaFont());
    if (!m_showHeader)
        destroyHeader();
    if (!m_ignoreShortcutChecking)
        checkAccelerators();
    setUpControls();
}

void TfrmRODefault::checkAccelerators()
{
    QSet<QChar> used;
    for (QWidget *widget : ownWidgets()) {
        auto *button = qobject_cast<QAbstractButton *>(widget);
        if (!button || !isPushOrSpeedButton(widget) || qobject_cast<TBitBtn *>(widget)
            || button->isHidden())
            continue;
        const QChar letter = acceleratorLetter(button->text());
        if (letter.isNull())
            continue;
        if (used.contains(letter)) {
            MessageServices::instance().showMessage(
                QStringLiteral("Zdublowany shortcut dla litery ") + u'"' + letter + u'"');
        }
        used.insert(letter);
    }
}

void TfrmRODefault::warnAuthor(const QString &text)
{
    MessageServices::instance().ask(objectName(), text, MessageService::Icon::Warning,
                                   MessageService::Ok, MessageService::Ok);
}

void TfrmRODefault::setUpControls()
{
    bool firstList = true;
    for (QWidget *widget : ownWidgets()) {
        if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
            if (isPartOfCompoundControl(edit))
                continue;
            attachEnterHandler(edit);
            applyFlatLook(edit);
            if (edit->maxLength() == UnlimitedLength)
                warnAuthor(QStringLiteral("Ustal długość Edita : ") + edit->objectName());
        } else if (auto *combo = qobject_cast<QComboBox *>(widget)) {
            attachEnterHandler(combo);
            applyFlatLook(combo, true);
            if (combo->isEditable()) {
                if (combo->lineEdit()->maxLength() == UnlimitedLength)
                    warnAuthor(QStringLiteral("Ustal długość ComboBoxa : ") + combo->objectName());
                setUpTypeAhead(combo);
            }
        } else if (qobject_cast<QSpinBox *>(widget) || qobject_cast<QDoubleSpinBox *>(widget)
                   || qobject_cast<TNumberEdit *>(widget)) {
            bool noMaximum = false;
            if (auto *number = qobject_cast<TNumberEdit *>(widget))
                noMaximum = number->maximum() == 0.0;
            else if (auto *spin = qobject_cast<QSpinBox *>(widget))
                noMaximum = spin->maximum() == 0;
            else
                noMaximum = static_cast<QDoubleSpinBox *>(widget)->maximum() == 0.0;
            if (noMaximum)
                warnAuthor(QStringLiteral("Ustal max RxSpinEdita : ") + widget->objectName());
            attachEnterHandler(widget);
            applyFlatLook(widget);
        } else if (qobject_cast<QAbstractSpinBox *>(widget)) {
            // date, time and the other edits with a button
            attachEnterHandler(widget);
            applyFlatLook(widget);
        } else if (auto *list = qobject_cast<TListView *>(widget)) {
            setUpListView(list, firstList);
        } else if (auto *group = qobject_cast<QGroupBox *>(widget)) {
            group->setFlat(m_flatControls);
        } else if (isPushOrSpeedButton(widget)) {
            widget->installEventFilter(this);
        }
    }
}

void TfrmRODefault::setUpListView(TListView *list, bool &firstList)
{
    if (m_flatControls)
        list->setFrameShape(QFrame::NoFrame);
    list->setTag(-1);
    if (m_sortListView) {
        connect(list->header(), &QHeaderView::sectionClicked, list, [list](int column) {
            list->setTag(column);
            list->sortByText(column);
        });
    }
    if (m_autoListViewUpdate && firstList)
        LoadLVData();
    firstList = false;
}

void TfrmRODefault::applyFlatLook(QWidget *control, bool comboFrame)
{
    if (!m_flatControls)
        return;
    control->setStyleSheet(comboFrame ? FlatComboFrame : FlatFrame);
}

void TfrmRODefault::attachEnterHandler(QWidget *control)
{
    control->installEventFilter(this);
}

void TfrmRODefault::setUpTypeAhead(QComboBox *combo)
{
    // Qt's own completer would complete as well; one completion is enough.
    combo->setCompleter(nullptr);
    connect(combo->lineEdit(), &QLineEdit::textEdited, this,
            [this, combo](const QString &text) { typeAhead(combo, text); });
}

void TfrmRODefault::typeAhead(QComboBox *combo, const QString &typed)
{
    const int key = std::exchange(m_lastComboKey, 0);
    if (key == Qt::Key_Delete || key == Qt::Key_Backspace || typed.isEmpty())
        return;
    QLineEdit *edit = combo->lineEdit();
    if (edit->cursorPosition() != typed.size())
        return;
    const int found = combo->findText(typed, Qt::MatchStartsWith);
    if (found < 0)
        return;
    const QString entry = combo->itemText(found);
    combo->setCurrentIndex(found);
    edit->setText(entry);
    // Further typing replaces the completed part.
    edit->setSelection(static_cast<int>(typed.size()),
                       static_cast<int>(entry.size() - typed.size()));
}
