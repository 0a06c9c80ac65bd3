# The headers that are installed: those that a host includes, and the helpers in detail folders that
# they need in turn. A test compares the list with what kelifc.h includes.
set(kelifc_public_headers
  kelifc/core/aggregate.h
  kelifc/core/binary.h
  kelifc/core/boolean.h
  kelifc/core/bounding_box.h
  kelifc/core/cartesian_point.h
  kelifc/core/coordinates.h
  kelifc/core/detail/block_memory.h
  kelifc/core/detail/cursor.h
  kelifc/core/detail/position_index.h
  kelifc/core/detail/prefetch.h
  kelifc/core/detail/sequence.h
  kelifc/core/detail/text_out.h
  kelifc/core/enum.h
  kelifc/core/enum_text.h
  kelifc/core/exception.h
  kelifc/core/integer.h
  kelifc/core/invalid_parameter.h
  kelifc/core/length_measure.h
  kelifc/core/list_of_members.h
  kelifc/core/logical.h
  kelifc/core/member.h
  kelifc/core/mvector.h
  kelifc/core/other.h
  kelifc/core/parameter_value.h
  kelifc/core/real.h
  kelifc/core/representation_item.h
  kelifc/core/selects.h
  kelifc/core/set_of_members.h
  kelifc/core/step_file_schema.h
  kelifc/core/string.h
  kelifc/core/trimming_preference.h
  kelifc/core/unit_assignment.h
  kelifc/core/unknown.h
  kelifc/core/value.h
  kelifc/geometry/brep.h
  kelifc/geometry/constants.h
  kelifc/geometry/isometry3.h
  kelifc/geometry/line3.h
  kelifc/geometry/line_hit3.h
  kelifc/geometry/local_plane.h
  kelifc/geometry/plane3.h
  kelifc/geometry/point.h
  kelifc/geometry/regular_figure.h
  kelifc/geometry/sector2.h
  kelifc/geometry/set_carver.h
  kelifc/kelifc.h
  kelifc/model_access.h
  kelifc/platform/com.h
  kelifc/platform/com_bstr.h
  kelifc/platform/com_error.h
  kelifc/platform/com_factory.h
  kelifc/platform/com_guid.h
  kelifc/platform/com_interfaces.h
  kelifc/platform/com_local_classes.h
  kelifc/platform/com_ptr.h
  kelifc/platform/com_string.h
  kelifc/platform/com_text.h
  kelifc/platform/com_types.h
  kelifc/platform/com_variant.h
  kelifc/platform/export.h
  kelifc/platform/guid.h
  kelifc/schema/common.h
  kelifc/schema/dimensional_exponents.h
  kelifc/server/detail/instance_index.h
  kelifc/server/detail/number_index.h
  kelifc/server/detail/project_classes.h
  kelifc/server/ifc_server.h
  kelifc/server/load_result.h
  kelifc/server/release.h)

# The headers that the generators write, below PROJECT_BINARY_DIR/generated. The folders that run a
# generator add the full paths to the property.
get_property(kelifc_generated_headers GLOBAL PROPERTY kelifc_generated_headers)
list(TRANSFORM kelifc_generated_headers REPLACE "^${PROJECT_BINARY_DIR}/generated/" "")
