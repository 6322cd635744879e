#pragma once

#include <memory>
#include <utility>

// A process-wide service with a built-in production implementation that a
// test (or the host) can replace for a while: the place where the module
// meets the screen, so that tests can answer instead of a person.
template <class Service, class BuiltIn>
class Seam
{
public:
    static Service &instance()
    {
        static BuiltIn builtIn;
        Service *service = slot().get();
        return service ? *service : builtIn;
    }

    // Returns the service it replaces (null for the built-in one), so that
    // the caller can put it back.
    static std::unique_ptr<Service> install(std::unique_ptr<Service> service)
    {
        return std::exchange(slot(), std::move(service));
    }

private:
    static std::unique_ptr<Service> &slot()
    {
        static std::unique_ptr<Service> installed;
        return installed;
    }
};
