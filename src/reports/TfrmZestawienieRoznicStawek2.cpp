#include "TfrmZestawienieRoznicStawek2.h"

#include "Configuration.h"
#include "TfrmWaitPlease.h"

#include <optional>

TfrmZestawienieRoznicStawek2::TfrmZestawienieRoznicStawek2(Connection &connection,
                                                           const ReportPeriod &period)
    : StatementReport(connection, RateDifferenceStatement::layout(period), [&connection, period] {
          const int own = Configuration(&connection).GetConfigInt(QStringLiteral("IDWłaściciela"));
          std::optional<WaitPleaseScope> wait;
          return RateDifferenceStatement::read(connection, period, own,
                                               [&wait](int done, int total) {
                                                   if (done == 1)
                                                       wait.emplace(total);
                                                   if (wait)
                                                       wait->window().advance();
                                               });
      })
{
}
