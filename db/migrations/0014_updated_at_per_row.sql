-- A row's updated_at is the moment that row was written, not the start of the writing
-- transaction. The trigger runs once the row is locked, so two writes of one row always carry
-- increasing times in the order they took effect, and a client that receives answers and feed
-- events out of order can keep the newest version of a row by this column alone.

create or replace function app.touch_updated_at() returns trigger
    language plpgsql
as $$
begin
    new.updated_at := clock_timestamp();
    return new;
end
$$;
revoke all on function app.touch_updated_at() from public;
