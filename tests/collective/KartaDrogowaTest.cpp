// The road-card choice as the dispatcher sees it.
#include "ScriptedModalRunner.h"
#include "SessionFixture.h"
#include "TBitBtn.h"
#include "TKarty_drObj.h"
#include "TRadioGroup.h"
#include "TfrmKartaDrogowa.h"

#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QTest>

#include <functional>

class KartaDrogowa : public SessionFixture
{
protected:
    int addCard(const QString &driver, const QString &vehicle)
    {
        TKarty_drObj card(db.connection());
        card.KIEROWCA = driver;
        card.REJ_POJAZD = vehicle;
        EXPECT_TRUE(card.Insert());
        return db.scalar(QStringLiteral("SELECT MAX(ID_KARTY_DR) FROM KARTY_DR")).toInt();
    }

    // The dialog as choose() shows it, played by the user.
    int chooseWith(const std::function<void(TfrmKartaDrogowa &)> &user)
    {
        scriptedModalRunner().expect<TfrmKartaDrogowa>([&user](TfrmKartaDrogowa &dialog) {
            user(dialog);
            return dialog.result();
        });
        const int choice = TfrmKartaDrogowa::choose(nullptr);
        EXPECT_TRUE(scriptedModalRunner().allRun());
        return choice;
    }

    // On its circle or its left end: a radio button stretched wider than
    // its caption takes no click at its middle.
    static void click(QAbstractButton *button)
    {
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    }
};

TEST_F(KartaDrogowa, TheCardListShowsOnlyForTheSecondItemAndWithoutCardsGivesNothing)
{
    EXPECT_EQ(chooseWith([](TfrmKartaDrogowa &dialog) {
                  EXPECT_EQ(dialog.rbKarta->itemIndex(), 0);
                  EXPECT_FALSE(dialog.cbKarta->isVisible());
                  click(dialog.rbKarta->button(1));
                  EXPECT_TRUE(dialog.lbKarta->isVisible());
                  EXPECT_TRUE(dialog.cbKarta->isVisible());
                  EXPECT_EQ(dialog.cbKarta->count(), 0);
                  click(dialog.btnWykonaj);
              }),
              TfrmKartaDrogowa::Cancelled);
    addCard(QStringLiteral("Jan Żak"), QStringLiteral("EL 1000"));
    chooseWith([](TfrmKartaDrogowa &dialog) {
        click(dialog.rbKarta->button(1));
        click(dialog.rbKarta->button(0));
        EXPECT_FALSE(dialog.lbKarta->isVisible());
        EXPECT_FALSE(dialog.cbKarta->isVisible());
        click(dialog.btnAnuluj);
    });
}

TEST_F(KartaDrogowa, TheAnswerIsCancelledNewCardOrTheChosenCard)
{
    addCard(QStringLiteral("Jan Żak"), QStringLiteral("EL 1000"));
    const int second = addCard(QStringLiteral("Ewa Łoś"), QStringLiteral("EL 2000"));

    EXPECT_EQ(chooseWith([](TfrmKartaDrogowa &dialog) { click(dialog.btnAnuluj); }),
              TfrmKartaDrogowa::Cancelled);
    EXPECT_EQ(chooseWith([](TfrmKartaDrogowa &dialog) { click(dialog.btnWykonaj); }),
              TfrmKartaDrogowa::NewCard);
    const int chosen = chooseWith([](TfrmKartaDrogowa &dialog) {
        click(dialog.rbKarta->button(1));
        EXPECT_EQ(dialog.cbKarta->currentIndex(), 0);
        QTest::keyClick(dialog.cbKarta, Qt::Key_Down);
        EXPECT_TRUE(dialog.cbKarta->currentText().endsWith(QStringLiteral("Ewa Łoś    EL 2000")));
        click(dialog.btnWykonaj);
    });
    EXPECT_EQ(chosen, second);
    // The close box is a cancel, whatever was chosen.
    EXPECT_EQ(chooseWith([](TfrmKartaDrogowa &dialog) {
                  click(dialog.rbKarta->button(1));
                  dialog.close();
              }),
              TfrmKartaDrogowa::Cancelled);
}
