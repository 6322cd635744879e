#include "ContractorRoles.h"
#include "Contractors.h"
#include "TframeListView.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SiblingFixture.h"
#include "SiblingRun.h"
#include "TBitBtn.h"
#include "TListView.h"
#include "TfrmAddEditKontrahenci.h"
#include "TfrmKontrahenci.h"

#include <QAction>
#include <QComboBox>

namespace {

class ContractorsRegister : public SiblingTest
{
protected:
    ContractorsRegister()
    {
        grant({QStringLiteral("TfrmKontrahenci"), QStringLiteral("TfrmAddEditKontrahenci")});
        db.exec(QStringLiteral("INSERT INTO KRAJE (SYMBOL, NAZWA, KOD_POCZTOWY_MASKA) "
                               "VALUES ('PL', 'Polska', '99-999')"));
        db.exec(QStringLiteral("INSERT INTO KRAJE (SYMBOL, NAZWA, KOD_POCZTOWY_MASKA) "
                               "VALUES ('NL', 'Holandia', '9999 AA')"));
        poland = lastKey(QStringLiteral("KRAJE"), QStringLiteral("ID_KRAJU")) - 1;
        db.exec(QStringLiteral("INSERT INTO KONFIGURACJA (POLE, TYP, VALUE_INT) "
                               "VALUES ('IDWłaściciela', 'I', 1)"));
        own = add("TRANS-WISŁA", ContractorRoles::Both);
        client = add("AGROMAX", ContractorRoles::Client);
        carrier = add("TIR-MAX", ContractorRoles::Carrier);
    }

    int add(const char *shortName, int role)
    {
        TKontrahenciObj contractor(db.connection());
        contractor.SKROT = QString::fromUtf8(shortName);
        contractor.NAZWA = contractor.SKROT + QStringLiteral(" Sp. z o.o.");
        contractor.KIERUNEK = role;
        contractor.AKTYWNY = 1;
        EXPECT_TRUE(contractor.Insert());
        return lastKey(QStringLiteral("KONTRAHENCI"), QStringLiteral("ID_KONTRAHENTA"));
    }

    TKontrahenciObj valid()
    {
        TKontrahenciObj contractor(db.connection());
        contractor.SKROT = QStringLiteral("NOWY");
        contractor.NAZWA = QStringLiteral("Nowy Klient S.A.");
        contractor.ID_KRAJU = poland;
        contractor.NIP = QStringLiteral("813-300-16-17");
        contractor.KOD = QStringLiteral("90-001");
        contractor.POLE1 = QStringLiteral("61 1090 1014 0000 0712 1981 2874");
        return contractor;
    }

    int poland = 0, own = 0, client = 0, carrier = 0;
};

} // namespace

TEST_F(ContractorsRegister, ListsTheRoleOfEachContractorAndKeepsTheOwnCompanyAndOneInvoiced)
{
    auto form = TfrmRODefault::create<TfrmKontrahenci>(nullptr, TfrmRegister::Browse, 0);
    const TListView &list = *form->frameListView1->lvMain;
    ASSERT_EQ(list.itemCount(), 3);
    EXPECT_EQ(list.subItem(list.findByKey(client), 4), "zleceniodawca");
    EXPECT_EQ(list.subItem(list.findByKey(carrier), 4), "przewoźnik");
    EXPECT_EQ(list.subItem(list.findByKey(own), 4), "zleceniodawca i przewoźnik");
    EXPECT_TRUE(ContractorRoles::isClient(ContractorRoles::Both));
    EXPECT_FALSE(ContractorRoles::isClient(ContractorRoles::Carrier));
    EXPECT_FALSE(ContractorRoles::isCarrier(ContractorRoles::Client));

    // The own company and a contractor of an invoice stay.
    db.exec(QStringLiteral("INSERT INTO FAKTURY (NR_KOLEJNY, ID_KONTRAHENTA) VALUES (1, %1)")
                .arg(client));
    for (const int key : {own, client}) {
        form->frameListView1->lvMain->selectByKey(key);
        scriptedMessages().expect(MessageService::Yes);
        scriptedMessages().expect();
        form->acUsun->trigger();
    }
    ASSERT_EQ(scriptedMessages().shown().size(), 4u);
    EXPECT_TRUE(scriptedMessages().shown()[1].text.startsWith(
        "Nie można usunąć tego kontrahenta: to firma własna (ustawienie IDWłaściciela)"));
    EXPECT_TRUE(scriptedMessages().shown()[3].text.contains("faktury (1)"));
    EXPECT_EQ(db.count(QStringLiteral("KONTRAHENCI")), 3);
}

TEST_F(ContractorsRegister, ChecksNipPostalCodeAccountAndShortNameOfAContractor)
{
    Connection &c = db.connection();
    TKontrahenciObj contractor = valid();
    EXPECT_FALSE(Contractors::check(contractor, c));

    contractor.NIP = QStringLiteral("813-300-16-18");
    EXPECT_EQ(Contractors::check(contractor, c)->field, "edNip");
    // A Dutch contractor's tax number follows Dutch rules, not the NIP's.
    contractor.ID_KRAJU = poland + 1;
    contractor.KOD = QStringLiteral("3011 AA");
    EXPECT_FALSE(Contractors::check(contractor, c));
    contractor.KOD = QStringLiteral("90-001");
    ASSERT_TRUE(Contractors::check(contractor, c));
    EXPECT_EQ(Contractors::check(contractor, c)->message,
              "Nieprawidłowy kod pocztowy: 90-001.\nKod pocztowy (Holandia) ma postać NNNN LL, "
              "gdzie N to cyfra, a L litera.");

    contractor = valid();
    contractor.POLE1 = QStringLiteral("61 1090 1014 0000 0712 1981 2875");
    EXPECT_EQ(Contractors::check(contractor, c)->field, "edRachunek");
    contractor = valid();
    contractor.SKROT = QStringLiteral(" agromax ");
    EXPECT_EQ(Contractors::check(contractor, c)->field, "edSkrot");
    // Its own short name is no conflict for a contractor being corrected.
    contractor.ID_KONTRAHENTA = client;
    EXPECT_FALSE(Contractors::check(contractor, c));
}

TEST_F(ContractorsRegister, ABadNipTypedIntoTheEditorSavesNothing)
{
    const int before = db.count(QStringLiteral("KONTRAHENCI"));
    scriptedModalRunner().expect<TfrmAddEditKontrahenci>([&](TfrmAddEditKontrahenci &editor) {
        type(editor.field(QStringLiteral("edSkrot")), QStringLiteral("NOWY"));
        type(editor.field(QStringLiteral("edNazwa")), QStringLiteral("Nowy Klient S.A."));
        type(editor.field(QStringLiteral("edNip")), QStringLiteral("725-100-20-30"));
        type(editor.field(QStringLiteral("edKod")), QStringLiteral("90001"));
        scriptedMessages().expect();
        click(editor.btnOk);
        EXPECT_EQ(editor.focusWidget(), editor.field(QStringLiteral("edNip")));
        type(editor.field(QStringLiteral("edNip")), QStringLiteral("725-100-20-46"));
        scriptedMessages().expect();
        click(editor.btnOk);
        EXPECT_EQ(editor.focusWidget(), editor.field(QStringLiteral("edKod")));
        EXPECT_EQ(db.count(QStringLiteral("KONTRAHENCI")), before);
        type(editor.field(QStringLiteral("edKod")), QStringLiteral("90-001"));
        click(editor.btnOk);
        return editor.result();
    });
    std::int32_t added = 0;
    EXPECT_EQ(SiblingRun::edit<TfrmAddEditKontrahenci>(Privileges::Add, 1, 0, &db.connection(),
                                                       &transaction, &added),
              1);
    ASSERT_EQ(scriptedMessages().shown().size(), 2u);
    EXPECT_TRUE(scriptedMessages().shown()[0].text.startsWith("Nieprawidłowy numer NIP"));
    EXPECT_TRUE(scriptedMessages().shown()[1].text.startsWith("Nieprawidłowy kod pocztowy"));
    const TKontrahenciObj saved = TKontrahenciObj(db.connection()).SelectById(added);
    EXPECT_EQ(saved.SKROT, "NOWY");
    EXPECT_EQ(saved.NIP, "725-100-20-46");
    // A new contractor is active, Polish and entered today.
    EXPECT_EQ(saved.AKTYWNY, 1);
    EXPECT_EQ(saved.ID_KRAJU, poland);
    EXPECT_EQ(saved.DATA_WPISU.date(), QDate::currentDate());
}

TEST_F(ContractorsRegister, CorrectingThroughTheEntryKeepsTheKeyCancelOrNoRightKeepsTheRecord)
{
    scriptedModalRunner().expect<TfrmAddEditKontrahenci>([](TfrmAddEditKontrahenci &editor) {
        auto *role = static_cast<QComboBox *>(editor.field(QStringLiteral("cbRola")));
        EXPECT_EQ(role->currentText(), "przewoźnik");
        type(editor.field(QStringLiteral("edTelefon")), QStringLiteral("+48 42 630 11 22"));
        click(editor.btnOk);
        return editor.result();
    });
    std::int32_t saved = 0;
    EXPECT_EQ(SiblingRun::edit<TfrmAddEditKontrahenci>(Privileges::Edit, 1, carrier,
                                                       &db.connection(), &transaction, &saved),
              1);
    EXPECT_EQ(saved, carrier);
    EXPECT_EQ(TKontrahenciObj(db.connection()).SelectById(carrier).TELEFON, "+48 42 630 11 22");

    scriptedModalRunner().expect<TfrmAddEditKontrahenci>([](TfrmAddEditKontrahenci &editor) {
        type(editor.field(QStringLiteral("edTelefon")), QStringLiteral("000"));
        click(editor.btnCancel);
        return editor.result();
    });
    saved = -1;
    EXPECT_EQ(SiblingRun::edit<TfrmAddEditKontrahenci>(Privileges::Edit, 1, carrier,
                                                       &db.connection(), &transaction, &saved),
              0);
    EXPECT_EQ(saved, -1);
    EXPECT_EQ(TKontrahenciObj(db.connection()).SelectById(carrier).TELEFON, "+48 42 630 11 22");

    // Without the right to edit nothing opens.
    grant({QStringLiteral("TfrmAddEditKontrahenci")}, 3, false, false, false);
    scriptedMessages().expect();
    EXPECT_EQ(SiblingRun::edit<TfrmAddEditKontrahenci>(Privileges::Edit, 3, carrier,
                                                       &db.connection(), &transaction, &saved),
              0);
    EXPECT_EQ(scriptedMessages().shown().at(0).caption, "Uprawnienia");
    EXPECT_EQ(saved, -1);
}
