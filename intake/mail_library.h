// intake/mail_library.h - gmime, which reads and writes mail messages: loaded when it is first needed, by the windows.
//
// Most people never need it, and loading it with the program, it and all that it needs, would be part of every start.
// So nothing links it: who uses it is given its functions.
#pragma once

// The macros of the library's types would call functions of it to check casts.
#define G_DISABLE_CAST_CHECKS
#include <gmime/gmime.h>

namespace tallyhoop {

// NOLINTBEGIN(cppcoreguidelines-macro-usage, bugprone-macro-parentheses): only a macro makes a name and a text of one
// word.

/// Every function that we use: its name once, so that the type of each is that of the library's own header.
#define TALLYHOOP_MAIL_FUNCTIONS(each)               \
    each(g_convert_with_fallback);                   \
    each(g_date_time_to_unix);                       \
    each(g_free);                                    \
    each(g_mime_content_disposition_get_parameters); \
    each(g_mime_content_type_get_parameters);        \
    each(g_mime_content_type_is_type);               \
    each(g_mime_data_wrapper_new_with_stream);       \
    each(g_mime_data_wrapper_write_to_stream);       \
    each(g_mime_format_options_free);                \
    each(g_mime_format_options_new);                 \
    each(g_mime_format_options_set_newline_format);  \
    each(g_mime_header_list_get_header);             \
    each(g_mime_header_set_raw_value);               \
    each(g_mime_init);                               \
    each(g_mime_message_get_addresses);              \
    each(g_mime_message_get_date);                   \
    each(g_mime_message_get_from);                   \
    each(g_mime_message_get_mime_part);              \
    each(g_mime_message_new);                        \
    each(g_mime_message_part_get_message);           \
    each(g_mime_message_part_get_type);              \
    each(g_mime_message_set_mime_part);              \
    each(g_mime_message_set_subject);                \
    each(g_mime_multipart_add);                      \
    each(g_mime_multipart_get_count);                \
    each(g_mime_multipart_get_part);                 \
    each(g_mime_multipart_get_type);                 \
    each(g_mime_multipart_new_with_subtype);         \
    each(g_mime_object_get_content_disposition);     \
    each(g_mime_object_get_content_type);            \
    each(g_mime_object_get_content_type_parameter);  \
    each(g_mime_object_get_header_list);             \
    each(g_mime_object_set_content_type_parameter);  \
    each(g_mime_object_set_disposition);             \
    each(g_mime_object_set_header);                  \
    each(g_mime_object_write_to_stream);             \
    each(g_mime_param_list_get_parameter);           \
    each(g_mime_param_set_charset);                  \
    each(g_mime_parser_construct_message);           \
    each(g_mime_parser_new_with_stream);             \
    each(g_mime_part_get_content);                   \
    each(g_mime_part_get_filename);                  \
    each(g_mime_part_get_type);                      \
    each(g_mime_part_new_with_type);                 \
    each(g_mime_part_set_content);                   \
    each(g_mime_part_set_content_encoding);          \
    each(g_mime_part_set_filename);                  \
    each(g_mime_stream_mem_get_byte_array);          \
    each(g_mime_stream_mem_new);                     \
    each(g_mime_stream_mem_new_with_buffer);         \
    each(g_object_unref);                            \
    each(g_type_check_instance_is_a);                \
    each(internet_address_list_add);                 \
    each(internet_address_list_get_address);         \
    each(internet_address_list_length);              \
    each(internet_address_list_parse);               \
    each(internet_address_mailbox_get_addr);         \
    each(internet_address_mailbox_get_type);         \
    each(internet_address_mailbox_new);              \
    each(internet_address_set_charset)

/// The library's functions under their own names.
struct MailLibrary {
#define TALLYHOOP_DECLARE(name) decltype(&::name) name = nullptr
    TALLYHOOP_MAIL_FUNCTIONS(TALLYHOOP_DECLARE);
#undef TALLYHOOP_DECLARE
};

// NOLINTEND(cppcoreguidelines-macro-usage, bugprone-macro-parentheses)

} // namespace tallyhoop
