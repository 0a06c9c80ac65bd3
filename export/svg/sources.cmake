target_sources(kelifc_export PRIVATE
  svg/cut_with_gaps.cpp
  svg/element_form.cpp
  svg/labels.cpp
  svg/lines.cpp
  svg/markup.cpp
  svg/opening_gaps.cpp
  svg/plan.cpp
  svg/plan_drawing.cpp
  svg/sheet.cpp
  svg/sheet_frame.cpp
  svg/style.cpp
  svg/write_svg.cpp)
