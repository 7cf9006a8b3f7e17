#pragma once

namespace zenta::platform {

// The outer size and inner (scale) size of a window, in twips, and where it sits on its own
// parent (the screen for a form).
struct WindowMetrics {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  int scale_width = 0;
  int scale_height = 0;
};

// Where a control sits: its own placement on its container, the container, and — when the
// container is not a form (a frame on a form) — the form that holds it.
struct ContainerMetrics {
  int control_left = 0;
  int control_top = 0;
  WindowMetrics container;
  bool container_is_form = true;
  WindowMetrics parent_form;
};

}  // namespace zenta::platform
