#include "heaviest_scene.h"

#include "bench_desk.h"

namespace orvane::bench {

Picture HeaviestScene() { return *HeaviestDesk().desk.main.Picture1.Image(); }

}  // namespace orvane::bench
