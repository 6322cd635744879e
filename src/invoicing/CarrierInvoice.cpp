#include "CarrierInvoice.h"

#include "Format.h"
#include "Statement.h"

namespace {

bool storable(DateTime date)
{
    if (date.isNull())
        return true;
    const QDate day = date.date();
    return day.isValid() && day.year() >= 1900 && day.year() <= 2100;
}

QString amountText(double amount)
{
    return Format::number(amount, u"#,##0.00");
}

} // namespace

std::optional<CarrierInvoice::Problem> CarrierInvoice::problem() const
{
    if (number.size() > MaxNumberLength) {
        return Problem{Field::Number, QStringLiteral("Numer faktury może mieć najwyżej %1 znaków.")
                                          .arg(MaxNumberLength)};
    }
    const std::pair<Field, DateTime> dates[] = {
        {Field::Issued, issued}, {Field::Received, received}, {Field::PaymentDate, paymentDate}};
    const QString names[] = {QStringLiteral("Data wystawienia"), QStringLiteral("Data otrzymania"),
                             QStringLiteral("Data zapłaty")};
    for (int i = 0; i < 3; ++i) {
        if (!storable(dates[i].second)) {
            return Problem{dates[i].first,
                           names[i] + QStringLiteral(" musi przypadać w latach 1900-2100.")};
        }
    }
    if (paymentDays < 0 || paymentDays > MaxPaymentDays) {
        return Problem{Field::PaymentDays,
                       QStringLiteral("Ilość dni płatności musi wynosić od 0 do %1.")
                           .arg(MaxPaymentDays)};
    }
    const std::pair<Field, double> amounts[] = {{Field::Amount, amount},
                                                {Field::PaidAmount, paidAmount}};
    const QString amountNames[] = {QStringLiteral("Kwota netto"), QStringLiteral("Zapłacono")};
    for (int i = 0; i < 2; ++i) {
        const double value = amounts[i].second;
        if (!(value >= 0.0 && value <= MaxAmount)) {
            return Problem{amounts[i].first, amountNames[i]
                               + QStringLiteral(": kwota musi wynosić od 0,00 do %1 zł.")
                                     .arg(amountText(MaxAmount))};
        }
    }
    return std::nullopt;
}

std::optional<CarrierInvoice> CarrierInvoice::load(Connection &connection, int orderKey)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT NRRAMPY, NUMER_FAKT_PRZEW, DATA_FAKT_WYSTAWIENIA,"));
    st.add(QStringLiteral("  DATA_FAKT_OTRZYMANIA, KWOTA_FAKT_PRZEW, DNI_FAKT,"));
    st.add(QStringLiteral("  DATA_FAKT_PLATNOSCI, ZAPLACONA_KWOTA"));
    st.add(QStringLiteral("FROM ZLECENIA_PRZYCH WHERE ID_ZLECENIA_PRZYCH = :aID_ZLECENIA_PRZYCH"));
    st.bind(QStringLiteral("aID_ZLECENIA_PRZYCH"), orderKey);
    st.exec();
    if (st.atEnd())
        return std::nullopt;
    CarrierInvoice invoice;
    invoice.paid = st.integer(QStringLiteral("NRRAMPY")) == 1;
    invoice.number = st.string(QStringLiteral("NUMER_FAKT_PRZEW"));
    invoice.issued = st.dateTime(QStringLiteral("DATA_FAKT_WYSTAWIENIA"));
    invoice.received = st.dateTime(QStringLiteral("DATA_FAKT_OTRZYMANIA"));
    invoice.amount = st.number(QStringLiteral("KWOTA_FAKT_PRZEW"));
    invoice.paymentDays = st.integer(QStringLiteral("DNI_FAKT"));
    invoice.paymentDate = st.dateTime(QStringLiteral("DATA_FAKT_PLATNOSCI"));
    invoice.paidAmount = st.number(QStringLiteral("ZAPLACONA_KWOTA"));
    return invoice;
}

bool CarrierInvoice::save(Connection &connection, int orderKey) const
{
    Statement st(connection);
    st.add(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET NRRAMPY = :aNRRAMPY,"));
    st.add(QStringLiteral("  NUMER_FAKT_PRZEW = :aNUMER_FAKT_PRZEW,"));
    st.add(QStringLiteral("  DATA_FAKT_WYSTAWIENIA = :aDATA_FAKT_WYSTAWIENIA,"));
    st.add(QStringLiteral("  DATA_FAKT_OTRZYMANIA = :aDATA_FAKT_OTRZYMANIA,"));
    st.add(QStringLiteral("  KWOTA_FAKT_PRZEW = :aKWOTA_FAKT_PRZEW, DNI_FAKT = :aDNI_FAKT,"));
    st.add(QStringLiteral("  DATA_FAKT_PLATNOSCI = :aDATA_FAKT_PLATNOSCI,"));
    st.add(QStringLiteral("  ZAPLACONA_KWOTA = :aZAPLACONA_KWOTA"));
    st.add(QStringLiteral("WHERE ID_ZLECENIA_PRZYCH = :aID_ZLECENIA_PRZYCH"));
    st.bind(QStringLiteral("aNRRAMPY"), paid ? 1 : 0);
    st.bind(QStringLiteral("aNUMER_FAKT_PRZEW"), number);
    st.bind(QStringLiteral("aDATA_FAKT_WYSTAWIENIA"), issued);
    st.bind(QStringLiteral("aDATA_FAKT_OTRZYMANIA"), received);
    st.bind(QStringLiteral("aKWOTA_FAKT_PRZEW"), amount);
    st.bind(QStringLiteral("aDNI_FAKT"), paymentDays);
    st.bind(QStringLiteral("aDATA_FAKT_PLATNOSCI"), paymentDate);
    st.bind(QStringLiteral("aZAPLACONA_KWOTA"), paidAmount);
    st.bind(QStringLiteral("aID_ZLECENIA_PRZYCH"), orderKey);
    st.exec();
    return st.rowsAffected() > 0;
}
