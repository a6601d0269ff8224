// A public class of the component without members that no host can create.
#pragma once

namespace tamrel {

class clsGenDef {
public:
    clsGenDef() = delete;
};

}  // namespace tamrel
