#pragma once

#include <memory>
#include <utility>

// A process-wide service where the module meets the screen, the printer or
// the file system, so that tests can answer instead of a person. Three
// levels, the first present wins:
//   - a service a test installed for a while (install),
//   - the service the program chose for itself at start (setProgramService),
//   - the built-in one.
// Calling instance() needs the built-in class complete; installing does not.
template <class Service, class BuiltIn>
class Seam
{
public:
    static Service &instance()
    {
        if (Service *installed = installedSlot().get())
            return *installed;
        if (Service *chosen = programSlot().get())
            return *chosen;
        static BuiltIn builtIn;
        return builtIn;
    }

    // Returns the service it replaces (null when none was installed), so
    // that the caller can put it back.
    static std::unique_ptr<Service> install(std::unique_ptr<Service> service)
    {
        return std::exchange(installedSlot(), std::move(service));
    }

    // For a program whose production service cannot be the built-in one
    // (it needs a library the lower layers do not link). A service a test
    // installs still goes before it.
    static void setProgramService(std::unique_ptr<Service> service)
    {
        programSlot() = std::move(service);
    }

    // Installs a service for the lifetime of the object and puts the
    // previous one back afterwards.
    template <class Replacement>
    class Scoped
    {
    public:
        template <class... Args>
        explicit Scoped(Args &&...args)
        {
            auto service = std::make_unique<Replacement>(std::forward<Args>(args)...);
            m_service = service.get();
            m_previous = install(std::move(service));
        }
        ~Scoped() { install(std::move(m_previous)); }
        Scoped(const Scoped &) = delete;
        Scoped &operator=(const Scoped &) = delete;

        Replacement &operator*() const { return *m_service; }
        Replacement *operator->() const { return m_service; }

    private:
        Replacement *m_service;
        std::unique_ptr<Service> m_previous;
    };

private:
    static std::unique_ptr<Service> &installedSlot()
    {
        static std::unique_ptr<Service> installed;
        return installed;
    }
    static std::unique_ptr<Service> &programSlot()
    {
        static std::unique_ptr<Service> chosen;
        return chosen;
    }
};
