#pragma once

#include "TfrmRODefault.h"
#include "RegisterModel.h"

#include <memory>

class QAction;
class TfrmRecordEditor;
class TframeListView;

// A register of the siblings: the records of a RegisterModel in a list
// frame (search, sort, column settings, sum, export), with add, correct and
// delete under the user's privileges for the form's class. Opened to browse
// it closes with "&Zamknij"; opened as a selection window "&Wybierz" (or a
// double click, or Enter in the list) ends it with the chosen record, the
// caller's current record selected at the start. Descendants give the
// model, the captions and the editor.
class TfrmRegister : public TfrmRODefault
{
    Q_OBJECT

public:
    enum Mode { Browse, Select };

    TfrmRegister(QWidget *owner, std::unique_ptr<RegisterModel> model, Mode mode, int currentKey);
    ~TfrmRegister() override;

    Mode mode() const { return m_mode; }
    // The record chosen in a selection window, after OK; 0 otherwise.
    int chosenKey() const { return m_chosenKey; }
    // The key of the selected row; 0 when none is selected.
    int selectedKey() const;

    void acDodajExecute();
    void acPoprawExecute();
    void acUsunExecute();

    TframeListView *frameListView1;
    QAction *acDodaj;
    QAction *acPopraw;
    QAction *acUsun;

protected:
    void FormCreate() override;
    void LoadLVData() override;
    void UpdateControls() override;

    // The editor of a record; key 0 adds one.
    virtual std::unique_ptr<TfrmRecordEditor> createEditor(int key) = 0;

    RegisterModel &model() { return *m_model; }
    void reloadAndSelect(int key);

private:
    void choose();
    void listDoubleClick();
    // Runs the editor; the saved record's key, 0 when nothing was saved.
    int runEditor(int key);

    std::unique_ptr<RegisterModel> m_model;
    Mode m_mode;
    int m_currentKey;
    int m_chosenKey = 0;
};
