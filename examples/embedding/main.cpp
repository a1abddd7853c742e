#include "core/RecordSet.h"
#include "core/ServiceRegistry.h"

#include <iostream>

class PrintedErrors : public qncal::ErrorControlService {
public:
    void enterRoutine(std::string_view) override {}
    void leaveRoutine() override {}
    void setError(const qncal::ErrorState& error) override { error_ = error; }
    void reportError() override { std::cout << "error " << error_.number << ": " << error_.text << '\n'; }
    std::int16_t getErrorAction() override { return static_cast<std::int16_t>(qncal::ErrorAction::leave); }

private:
    qncal::ErrorState error_;
};

int main()
{
    qncal::serviceRegistry().errorControl = std::make_shared<PrintedErrors>();
    const bool connected = qncal::routine("example-main", false, [] { return qncal::isDatabaseConnected(); });
    std::cout << (connected ? "a database" : "no database") << '\n';
}
