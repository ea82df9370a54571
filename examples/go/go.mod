module norvepa.example/client_go

go 1.19
