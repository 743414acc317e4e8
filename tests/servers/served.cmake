# Run by zqn_server_test: what a command finds.
if(NOT "$ENV{ZQN_ODBC}" MATCHES "^Driver={[A-Za-z ]+};Server=127\\.0\\.0\\.1;Port=[0-9]+;Database=t_servers_serve_$ENV{ZQN_ODBC_SERVER}_[0-9a-f]+;")
  message(FATAL_ERROR "the connection string is not that of a database of this test's own")
endif()
