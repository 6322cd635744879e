#include "TfrmRODefault.h"

#include "FrameEvents.h"
#include "HeaderPicture.h"
#include "ModalRunner.h"
#include "TBitBtn.h"
#include "TframeListView.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int HeaderPictureSize = 48;
constexpr int TitleHeightAlone = 48;
constexpr int TitleHeightWithDescription = 20;

} // namespace

TfrmRODefault::TfrmRODefault(QWidget *owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("frmRODefault"));
    setWindowTitle(QStringLiteral("RODefaultWindow"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint
                   | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    setSizeGripEnabled(false);
    buildHeader();
    pnlClient = new QWidget(this);
    pnlClient->setObjectName(QStringLiteral("pnlClient"));
    buildFooter();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(pnlHeader);
    layout->addWidget(pnlClient, 1);
    layout->addWidget(pnlFooter);
}

TfrmRODefault::~TfrmRODefault()
{
    if (m_created)
        sendToFrames(FrameEvents::SaveSettings);
}

void TfrmRODefault::buildHeader()
{
    pnlHeader = new QFrame(this);
    pnlHeader->setObjectName(QStringLiteral("pnlHeader"));
    pnlHeader->setFrameStyle(QFrame::Panel | QFrame::Sunken);

    pnlBackground = new QWidget(pnlHeader);
    pnlBackground->setObjectName(QStringLiteral("pnlBackground"));
    pnlBackground->setAutoFillBackground(true);
    QPalette white = pnlBackground->palette();
    white.setColor(QPalette::Window, Qt::white);
    pnlBackground->setPalette(white);
    imgHeader = new QLabel(pnlBackground);
    imgHeader->setObjectName(QStringLiteral("imgHeader"));
    imgHeader->setPixmap(headerPicture(HeaderPictureSize));
    lblHeader = new QLabel(QStringLiteral("Nagłówek"), pnlBackground);
    lblHeader->setObjectName(QStringLiteral("lblHeader"));
    lblHeader->setAlignment(Qt::AlignCenter);
    lblHeader->setStyleSheet(QStringLiteral(
        "color: white; background-color: #1f3a68; font-weight: bold; font-size: 12pt;"));
    BitBtnTerminarz = new QPushButton(QStringLiteral("Terminarz"), pnlBackground);
    BitBtnTerminarz->setObjectName(QStringLiteral("BitBtnTerminarz"));
    BitBtnTerminarz->hide();
    BtnKalendarz1 = new QPushButton(QStringLiteral("Kalendarz"), pnlBackground);
    BtnKalendarz1->setObjectName(QStringLiteral("BtnKalendarz1"));
    BtnKalendarz1->hide();
    auto *background = new QHBoxLayout(pnlBackground);
    background->setContentsMargins(4, 4, 4, 4);
    background->addWidget(imgHeader);
    background->addWidget(lblHeader, 1);
    background->addWidget(BitBtnTerminarz);
    background->addWidget(BtnKalendarz1);

    pnlSpace = new QWidget(pnlHeader);
    pnlSpace->setObjectName(QStringLiteral("pnlSpace"));
    pnlSpace->setAutoFillBackground(true);
    QPalette silver = pnlSpace->palette();
    silver.setColor(QPalette::Window, QColor(0xC0, 0xC0, 0xC0));
    pnlSpace->setPalette(silver);
    lblHeaderDescription = new QLabel(pnlSpace);
    lblHeaderDescription->setObjectName(QStringLiteral("lblHeaderDescription"));
    lblHeaderDescription->setWordWrap(true);
    auto *space = new QVBoxLayout(pnlSpace);
    space->setContentsMargins(8, 2, 8, 2);
    space->addWidget(lblHeaderDescription);

    auto *header = new QVBoxLayout(pnlHeader);
    header->setContentsMargins(1, 1, 1, 1);
    header->setSpacing(0);
    header->addWidget(pnlBackground);
    header->addWidget(pnlSpace);
}

void TfrmRODefault::buildFooter()
{
    pnlFooter = new QFrame(this);
    pnlFooter->setObjectName(QStringLiteral("pnlFooter"));
    pnlFooter->setFrameStyle(QFrame::Panel | QFrame::Raised);
    btnOk = new TBitBtn(QStringLiteral("&Zapisz i zamknij"), pnlFooter);
    btnOk->setObjectName(QStringLiteral("btnOk"));
    btnOk->setModalResult(mrOk);
    btnCancel = new TBitBtn(QStringLiteral("&Anuluj"), pnlFooter);
    btnCancel->setObjectName(QStringLiteral("btnCancel"));
    btnCancel->setModalResult(mrCancel);
    auto *footer = new QHBoxLayout(pnlFooter);
    footer->setContentsMargins(8, 6, 8, 6);
    footer->addStretch(1);
    footer->addWidget(btnOk);
    footer->addWidget(btnCancel);
}

void TfrmRODefault::destroyHeader()
{
    // The header goes with everything in it, as if it had never been there.
    delete std::exchange(pnlHeader, nullptr);
    pnlBackground = pnlSpace = nullptr;
    imgHeader = lblHeader = lblHeaderDescription = nullptr;
    BitBtnTerminarz = BtnKalendarz1 = nullptr;
}

void TfrmRODefault::ensureCreated()
{
    if (m_created)
        return;
    m_created = true;
    FormCreate();
    connectModalResults();
    InitializeForm();
    putFooterLast();
    sendToFrames(FrameEvents::BuildMenus);
}

int TfrmRODefault::showModal()
{
    ensureCreated();
    return runModal(*this);
}

void TfrmRODefault::connectModalResults()
{
    // Connected last, so that a descendant's own click handler has run
    // before the button closes the form.
    for (TBitBtn *button : findChildren<TBitBtn *>()) {
        if (button->modalResult() != 0)
            connect(button, &TBitBtn::clicked, this,
                    [this, button] { done(button->modalResult()); });
    }
}

void TfrmRODefault::sendToFrames(QEvent::Type type)
{
    for (TframeListView *frame : findChildren<TframeListView *>())
        FrameEvents::send(frame, type);
}

void TfrmRODefault::reject()
{
    done(mrCancel);
}

bool TfrmRODefault::event(QEvent *event)
{
    if (event->type() == FrameEvents::ReloadLists) {
        LoadLVData();
        return true;
    }
    if (event->type() == FrameEvents::SelectionChanged) {
        UpdateControls();
        return true;
    }
    return QDialog::event(event);
}

void TfrmRODefault::showEvent(QShowEvent *event)
{
    ensureCreated();
    QDialog::showEvent(event);
    FormShow();
    skipReadOnlyStart();
}

void TfrmRODefault::FormShow()
{
    if (!pnlHeader)
        return;
    const bool described = !lblHeaderDescription->text().isEmpty();
    lblHeader->setFixedHeight(described ? TitleHeightWithDescription : TitleHeightAlone);
    pnlSpace->setVisible(described);
}

void TfrmRODefault::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        // Without ROCloseOnESC, Esc does nothing at all.
        event->accept();
        if (m_closeOnEsc)
            done(result() != 0 ? result() : mrCancel);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A focused button takes Enter itself; from anywhere else Enter
        // must not reach a default button that would close the form.
        event->accept();
        return;
    default:
        QDialog::keyPressEvent(event);
    }
}
