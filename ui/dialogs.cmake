# The windows beside the main window, and the printing.
target_sources(tarvix_window PRIVATE
    "${PROJECT_SOURCE_DIR}/report/page_painter.cpp"
    "${PROJECT_SOURCE_DIR}/report/print_system.cpp"
    "${PROJECT_SOURCE_DIR}/report/report_printer.cpp"
    "${PROJECT_SOURCE_DIR}/ui/about_box.cpp"
    "${PROJECT_SOURCE_DIR}/ui/frm_cust_info.cpp"
    "${PROJECT_SOURCE_DIR}/ui/frm_splash.cpp"
    "${PROJECT_SOURCE_DIR}/ui/logo_picture.cpp"
    "${PROJECT_SOURCE_DIR}/ui/window_host_qt.cpp")
