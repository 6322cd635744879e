#include "TfrmRecordEditor.h"

#include "DbError.h"
#include "ReportFailures.h"
#include "FieldWidgets.h"
#include "MessageService.h"
#include "SessionContext.h"
#include "TBitBtn.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>

namespace {

// Wide enough for a surname or an address without scrolling.
constexpr int GroupWidth = 330;

} // namespace

TfrmRecordEditor::TfrmRecordEditor(QWidget *owner, std::unique_ptr<RecordEditing> editing,
                                   int key)
    : TfrmRODefault(owner), m_editing(std::move(editing))
{
    setROCloseOnESC(true);
    // Closes only after the record is saved.
    btnOk->setModalResult(0);
    buildFields();
    try {
        m_found = m_editing->load(key);
    } catch (const DbError &error) {
        reportFailure(QStringLiteral("Nie udało się wczytać danych do edycji."), error);
    }
    if (m_found)
        showRecord();
    connect(btnOk, &TBitBtn::clicked, this, &TfrmRecordEditor::btnOkClick);
}

TfrmRecordEditor::~TfrmRecordEditor() = default;

void TfrmRecordEditor::buildFields()
{
    const std::vector<FieldGroup> &groups = m_editing->groups();
    std::vector<QFormLayout *> forms;
    auto *grid = new QGridLayout(pnlClient);
    grid->setContentsMargins(8, 8, 8, 8);
    int rows[2] = {0, 0};
    for (const FieldGroup &group : groups) {
        auto *box = new QGroupBox(group.title, pnlClient);
        auto *form = new QFormLayout(box);
        form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        forms.push_back(form);
        if (group.column < 0) {
            const int row = std::max(rows[0], rows[1]);
            grid->addWidget(box, row, 0, 1, 2);
            rows[0] = rows[1] = row + 1;
        } else {
            box->setMinimumWidth(GroupWidth);
            grid->addWidget(box, rows[group.column]++, group.column);
        }
    }
    grid->setRowStretch(std::max(rows[0], rows[1]), 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);

    Connection *database = session().Database;
    for (const EditorField &described : m_editing->fields()) {
        std::vector<Choice> choices;
        if (described.choices && database) {
            try {
                choices = described.choices(*database);
            } catch (const DbError &error) {
                reportFailure(
                    QStringLiteral("Nie udało się wczytać listy pola %1.").arg(described.caption),
                    error);
            }
        }
        QWidget *widget = FieldWidgets::create(described, choices, this);
        QFormLayout *form = forms.at(std::size_t(described.group));
        if (described.kind == FieldKind::Flag)
            form->addRow(QString(), widget);
        else
            form->addRow(described.caption, widget);
        m_widgets.push_back(widget);
    }
}

QWidget *TfrmRecordEditor::field(const QString &name) const
{
    const int index = m_editing->indexOf(name);
    return index < 0 ? nullptr : m_widgets[std::size_t(index)];
}

void TfrmRecordEditor::showRecord()
{
    const std::vector<EditorField> &layout = m_editing->fields();
    for (std::size_t i = 0; i < layout.size(); ++i)
        FieldWidgets::show(m_widgets[i], layout[i], m_editing->value(int(i)));
}

void TfrmRecordEditor::takeValues()
{
    const std::vector<EditorField> &layout = m_editing->fields();
    for (std::size_t i = 0; i < layout.size(); ++i)
        m_editing->setValue(int(i), FieldWidgets::value(m_widgets[i], layout[i]));
}

void TfrmRecordEditor::btnOkClick()
{
    takeValues();
    Problem problem;
    try {
        problem = m_editing->check();
    } catch (const DbError &error) {
        reportFailure(QStringLiteral("Nie udało się sprawdzić danych; nic nie zostało zapisane."),
                      error);
        return;
    }
    if (problem) {
        Messages::inform(QStringLiteral("Nieprawidłowe dane"), problem->message,
                         MessageService::Icon::Warning);
        if (QWidget *widget = field(problem->field))
            widget->setFocus();
        return;
    }
    int key = 0;
    try {
        key = m_editing->save();
    } catch (const DbError &error) {
        reportFailure(QStringLiteral("Baza danych nie przyjęła zapisu; nic nie zostało zapisane."),
                      error);
    }
    if (key == 0)
        return;   // the failure was shown; everything typed stays
    m_savedKey = key;
    done(mrOk);
}
