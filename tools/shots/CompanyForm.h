#pragma once

#include "SessionContext.h"
#include "Shots.h"
#include "Transaction.h"

#include <QObject>
#include <QWidget>

#include <memory>

// The demo company as the session of one form, given back to whatever the
// session was when the form goes.
class CompanySession : public QObject
{
public:
    explicit CompanySession(QWidget *form) : QObject(form), m_previous(session())
    {
        static Transaction transaction(demoCompany());
        setSession(1, &demoCompany(), &transaction);
    }
    ~CompanySession() override
    {
        setSession(m_previous.UserID, m_previous.Database, m_previous.Transaction);
    }

private:
    SessionContext m_previous;
};

// A form of the module made and finished on the demo company.
template <class Form, class... Args>
std::unique_ptr<Form> formOfCompany(Args &&...args)
{
    auto form = std::make_unique<Form>(std::forward<Args>(args)...);
    new CompanySession(form.get());
    form->ensureCreated();
    return form;
}
