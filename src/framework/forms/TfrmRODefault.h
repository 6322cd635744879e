#pragma once

#include <QDialog>
#include <QEvent>

#include <memory>
#include <utility>

class QAbstractButton;
class QComboBox;
class QFrame;
class QLabel;
class QPushButton;
class TBitBtn;
class TListView;

// The common ancestor of the module's registers, editors and selection
// dialogs: one header and footer, one font, Enter moving to the next field,
// Esc closing where the form says so, the link to embedded list frames, a
// generic sort of plain lists and checks that warn the form's author at
// creation about fields without a length limit and doubled accelerators.
//
// A form is finished in two steps: the constructors lay out the controls,
// then ensureCreated() runs FormCreate, the early initialisation and tells
// the frames to build their menus. create<Form>(...) does both; showing a
// form that was not finished finishes it first.
//
// Modal results: 1 for OK, 2 for cancel (also the close box and Esc).
class TfrmRODefault : public QDialog
{
    Q_OBJECT

public:
    enum ModalResult { mrOk = 1, mrCancel = 2 };

    explicit TfrmRODefault(QWidget *owner = nullptr);
    ~TfrmRODefault() override;

    template <class Form, class... Args>
    static std::unique_ptr<Form> create(Args &&...args)
    {
        auto form = std::make_unique<Form>(std::forward<Args>(args)...);
        form->ensureCreated();
        return form;
    }
    void ensureCreated();
    bool isCreated() const { return m_created; }

    // Runs the form modally through the modal runner; returns the result.
    int showModal();

    // Takes what is typed in every field of the form, as before any of
    // its buttons acts (cancelling ones aside). A field whose text cannot
    // be taken stops it: its message is shown, the field gets the focus
    // with the text as typed, and the result is false.
    bool commitFields();

    // Layout flags, set by a descendant before it is finished.
    bool ROFlatControls() const { return m_flatControls; }
    void setROFlatControls(bool on) { m_flatControls = on; }
    bool ROCloseOnESC() const { return m_closeOnEsc; }
    void setROCloseOnESC(bool on) { m_closeOnEsc = on; }
    bool ROShowHeader() const { return m_showHeader; }
    void setROShowHeader(bool on) { m_showHeader = on; }
    bool ROSortListView() const { return m_sortListView; }
    void setROSortListView(bool on) { m_sortListView = on; }
    int RORefreshTime() const { return m_refreshTime; }
    void setRORefreshTime(int seconds) { m_refreshTime = seconds; }
    bool ROAutoListViewUpdate() const { return m_autoListViewUpdate; }
    void setROAutoListViewUpdate(bool on) { m_autoListViewUpdate = on; }
    bool ROIgnoreShortcutChecking() const { return m_ignoreShortcutChecking; }
    void setROIgnoreShortcutChecking(bool on) { m_ignoreShortcutChecking = on; }

    // The close box and a cancel both end with 2.
    void reject() override;

    // Components, by their documented names. pnlHeader and everything in it
    // are gone (null) once a form without header is finished.
    QFrame *pnlHeader;
    QWidget *pnlBackground;
    QLabel *imgHeader;
    QLabel *lblHeader;
    QWidget *pnlSpace;
    QLabel *lblHeaderDescription;
    QPushButton *BitBtnTerminarz;   // hidden until a descendant wires the scheduler
    QPushButton *BtnKalendarz1;     // likewise
    QWidget *pnlClient;             // where descendants put their controls
    QFrame *pnlFooter;
    TBitBtn *btnOk;
    TBitBtn *btnCancel;

protected:
    // Fill the lists from the database.
    virtual void LoadLVData() {}
    // Enable or disable actions from the selection and the user's rights.
    virtual void UpdateControls() {}
    // Early initialisation of a descendant, right after FormCreate.
    virtual void InitializeForm() {}
    // Descendants set their flags, call this, then load their data.
    virtual void FormCreate();
    virtual void FormShow();

    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildHeader();
    void buildFooter();
    void destroyHeader();
    void checkAccelerators();
    void setUpControls();
    void setUpListView(TListView *list, bool &firstList);
    void setUpTypeAhead(QComboBox *combo);
    void typeAhead(QComboBox *combo, const QString &typed);
    void attachEnterHandler(QWidget *control);
    // The next field in tab order that Enter moves to: an edit, list, date
    // or number field of the form itself that can be typed into, never a
    // button.
    QWidget *nextInputField(QWidget *from) const;
    bool isInputField(QWidget *widget) const;
    // The footer's buttons come after every field in tab order, so that
    // a form starts in its first field and Tab ends on its buttons.
    void putFooterLast();
    // A form whose first field only shows a value (a read-only edit) starts
    // in the first field that can be typed into.
    void skipReadOnlyStart();
    // Before a button of the form acts (click, Space, Enter, accelerator),
    // what is typed is taken; true when the button must not act.
    bool stopsButton(QObject *watched, QEvent *event);
    bool cancels(const QAbstractButton *button) const;
    void applyFlatLook(QWidget *control, bool comboFrame = false);
    void warnAuthor(const QString &text);
    void connectModalResults();
    void sendToFrames(QEvent::Type type);
    // The form's own widgets in creation order, without the insides of
    // embedded frames (those belong to the frames).
    QList<QWidget *> ownWidgets() const;

    bool m_created = false;
    bool m_flatControls = false;
    bool m_closeOnEsc = false;
    bool m_showHeader = true;
    bool m_sortListView = false;
    int m_refreshTime = 0;
    bool m_autoListViewUpdate = false;
    bool m_ignoreShortcutChecking = false;
    int m_lastComboKey = 0;
};
