#include "HostFramework/NagScreenManager.h"

namespace Pelnar::App::NagScreen
{

Manager::Manager(QObject* parent) : QObject(parent) {}

Manager::~Manager() = default;

} // namespace Pelnar::App::NagScreen
