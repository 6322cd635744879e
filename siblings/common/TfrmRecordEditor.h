#pragma once

#include "TfrmRODefault.h"
#include "RecordEditing.h"

#include <memory>
#include <vector>

// The editor of one record of a sibling register: its fields laid out in
// groups from the record's description, Enter moving between them, and
// "&Zapisz i zamknij" saving only values that pass the record's checks. A
// refused value is named in a message and keeps its field focused with
// everything typed still there.
class TfrmRecordEditor : public TfrmRODefault
{
    Q_OBJECT

public:
    // key 0 adds a new record.
    TfrmRecordEditor(QWidget *owner, std::unique_ptr<RecordEditing> editing, int key);
    ~TfrmRecordEditor() override;

    // False when the record to correct is not there (another workstation
    // deleted it); the editor should not be shown then.
    bool found() const { return m_found; }
    // The key of the saved record, after OK.
    int savedKey() const { return m_savedKey; }
    // A field's widget by its name; null when there is none.
    QWidget *field(const QString &name) const;

protected:
    RecordEditing &editing() { return *m_editing; }
    // The record's values into the widgets, and back.
    void showRecord();
    void takeValues();
    void btnOkClick();

private:
    void buildFields();

    std::unique_ptr<RecordEditing> m_editing;
    std::vector<QWidget *> m_widgets;
    bool m_found = false;
    int m_savedKey = 0;
};
