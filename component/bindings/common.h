#pragma once
#include "component/shared_bindings.h"
