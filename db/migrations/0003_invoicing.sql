-- Invoices, their lines and the links to the time entries and trips they bill; numbering and voiding.
--
-- A time entry or trip may be on at most one live (not void) invoice. The links carry a `live` flag
-- mirroring their invoice's status, and a partial unique index over it turns a second live link into
-- 23505, also when two transactions insert at once. Voiding clears the flag; the link rows stay as
-- history.

create table public.invoice_templates (
    id uuid primary key default gen_random_uuid(),
    user_id uuid not null default auth.uid(),
    team_id uuid references public.teams (id) on delete set null,
    name text not null,
    style jsonb not null default '{}'::jsonb check (jsonb_typeof(style) = 'object'),
    is_default boolean not null default false,
    created_at timestamptz not null default now(),
    updated_at timestamptz not null default now()
);
create index invoice_templates_user_id_idx on public.invoice_templates (user_id);
create index invoice_templates_team_id_idx on public.invoice_templates (team_id);

create table public.invoices (
    id uuid primary key default gen_random_uuid(),
    user_id uuid not null default auth.uid(),
    team_id uuid references public.teams (id) on delete set null,
    project_id uuid references public.projects (id) on delete set null,
    template_id uuid references public.invoice_templates (id) on delete set null,
    client_id uuid references public.clients (id) on delete set null,
    number text not null check (btrim(number) <> ''),
    issued_at date not null,
    due_at date,
    currency text not null,
    subtotal numeric not null default 0,
    vat_amount numeric not null default 0,
    total numeric not null default 0,
    status text not null default 'draft' check (status in ('draft', 'sent', 'paid', 'void')),
    client_name text,
    client_email text,
    client_address text,
    notes text,
    cover_note text,
    pdf_path text,
    created_at timestamptz not null default now(),
    updated_at timestamptz not null default now(),
    unique (user_id, number)
);
create index invoices_team_id_idx on public.invoices (team_id);
create index invoices_project_id_idx on public.invoices (project_id);
create index invoices_template_id_idx on public.invoices (template_id);
create index invoices_client_id_idx on public.invoices (client_id);

create table public.invoice_lines (
    id uuid primary key default gen_random_uuid(),
    invoice_id uuid not null references public.invoices (id) on delete cascade,
    task_id uuid references public.tasks (id) on delete set null,
    pool_project_id uuid references public.projects (id) on delete set null,
    title text not null,
    description text,
    quantity numeric not null,
    unit text,
    unit_price numeric not null,
    amount numeric not null,
    order_index integer not null default 0,
    created_at timestamptz not null default now()
);
create index invoice_lines_invoice_id_idx on public.invoice_lines (invoice_id, order_index);
create index invoice_lines_task_id_idx on public.invoice_lines (task_id);
create index invoice_lines_pool_project_id_idx on public.invoice_lines (pool_project_id);

create table public.invoice_entries (
    id uuid primary key default gen_random_uuid(),
    invoice_id uuid not null references public.invoices (id) on delete cascade,
    time_entry_id uuid not null references public.time_entries (id) on delete cascade,
    live boolean not null default true,
    created_at timestamptz not null default now(),
    unique (invoice_id, time_entry_id)
);
create unique index invoice_entries_live_time_entry_key on public.invoice_entries (time_entry_id) where live;
create index invoice_entries_time_entry_id_idx on public.invoice_entries (time_entry_id);

create table public.invoice_trips (
    id uuid primary key default gen_random_uuid(),
    invoice_id uuid not null references public.invoices (id) on delete cascade,
    trip_id uuid not null references public.trips (id) on delete cascade,
    live boolean not null default true,
    created_at timestamptz not null default now(),
    unique (invoice_id, trip_id)
);
create unique index invoice_trips_live_trip_key on public.invoice_trips (trip_id) where live;
create index invoice_trips_trip_id_idx on public.invoice_trips (trip_id);

create trigger touch_updated_at before update on public.invoice_templates
    for each row execute function app.touch_updated_at();
create trigger touch_updated_at before update on public.invoices
    for each row execute function app.touch_updated_at();

-- A void invoice is final. The one exception is a referenced project, client, template or team
-- being deleted: its ON DELETE SET NULL (an update issued from inside the foreign-key trigger, hence
-- the trigger depth) must not be blocked by a void invoice that merely names it.
create or replace function app.keep_void_invoice_final() returns trigger
    language plpgsql
as $$
begin
    if old.status <> 'void' then
        return new;
    end if;
    if pg_trigger_depth() > 1 and not exists (
        select 1
        from jsonb_each(to_jsonb(new)) n
        join jsonb_each(to_jsonb(old)) o using (key)
        where n.value is distinct from o.value
          and n.key <> 'updated_at'
          and not (n.key in ('project_id', 'client_id', 'template_id', 'team_id') and n.value = 'null'::jsonb)
    ) then
        return new;
    end if;
    raise exception 'invoice_void_final: invoice % is void and cannot be changed', old.id
        using hint = 'A void invoice stays void; create a new invoice instead.';
end
$$;
revoke all on function app.keep_void_invoice_final() from public;

create trigger keep_void_final before update on public.invoices
    for each row execute function app.keep_void_invoice_final();

-- Definer so the release is complete: a caller's policies must not silently skip links.
create or replace function app.release_links_of_void_invoice() returns trigger
    language plpgsql
    security definer
    set search_path = ''
as $$
begin
    update public.invoice_entries set live = false where invoice_id = new.id and live;
    update public.invoice_trips set live = false where invoice_id = new.id and live;
    return null;
end
$$;
revoke all on function app.release_links_of_void_invoice() from public;

create trigger release_links after update of status on public.invoices
    for each row when (new.status = 'void' and old.status <> 'void')
    execute function app.release_links_of_void_invoice();

-- The flag is never taken from the client. FOR SHARE waits for a concurrent void of the same
-- invoice (and makes that void wait for us), so a link cannot come out live on a void invoice.
create or replace function app.set_link_live_flag() returns trigger
    language plpgsql
    security definer
    set search_path = ''
as $$
declare
    invoice_status text;
begin
    select i.status into invoice_status from public.invoices i where i.id = new.invoice_id for share;
    new.live := coalesce(invoice_status <> 'void', false);
    return new;
end
$$;
revoke all on function app.set_link_live_flag() from public;

create trigger set_live_flag before insert or update on public.invoice_entries
    for each row execute function app.set_link_live_flag();
create trigger set_live_flag before insert or update on public.invoice_trips
    for each row execute function app.set_link_live_flag();

-- Definer: billed-ness must count links on invoices the caller cannot see (a team owner may bill a
-- member's entry on an invoice of their own), or such entries would look unbilled to their owner.
create or replace function app.billed_time_entry_ids() returns setof uuid
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select ie.time_entry_id
    from public.invoice_entries ie
    join public.time_entries te on te.id = ie.time_entry_id
    where ie.live and te.user_id = auth.uid()
$$;
revoke all on function app.billed_time_entry_ids() from public;
grant execute on function app.billed_time_entry_ids() to authenticated, service_role;

create or replace view public.unbilled_time_entries with (security_invoker = true) as
select te.*
from public.time_entries te
where te.user_id = auth.uid()
  and te.id not in (select app.billed_time_entry_ids());

-- Invoice numbers: one counter per user and year. Kept apart from the invoices so a deleted
-- invoice never frees its number for reuse.
create table app.invoice_counters (
    user_id uuid not null,
    year integer not null,
    last_value bigint not null check (last_value > 0),
    primary key (user_id, year)
);
alter table app.invoice_counters enable row level security;
revoke all on app.invoice_counters from public, anon, authenticated, service_role;

-- The upsert takes the counter row's lock, so concurrent callers are served one after the other and
-- each gets the next value.
create or replace function public.next_invoice_number() returns text
    language plpgsql
    volatile
    security definer
    set search_path = ''
as $$
declare
    caller uuid := auth.uid();
    this_year integer := extract(year from now() at time zone 'UTC')::integer;
    seq bigint;
    candidate text;
begin
    if caller is null then
        raise exception 'next_invoice_number: not signed in' using errcode = '42501';
    end if;
    loop
        insert into app.invoice_counters as c (user_id, year, last_value)
        values (caller, this_year, 1)
        on conflict (user_id, year) do update set last_value = c.last_value + 1
        returning c.last_value into seq;
        candidate := this_year::text || '-' || lpad(seq::text, greatest(4, length(seq::text)), '0');
        -- A number typed in by hand may already be taken; skip it instead of handing it out again.
        exit when not exists (select 1 from public.invoices i where i.user_id = caller and i.number = candidate);
    end loop;
    return candidate;
end
$$;
revoke all on function public.next_invoice_number() from public, anon;
grant execute on function public.next_invoice_number() to authenticated, service_role;

-- Runs with the caller's rights, so the invoice policies decide who may void: a reader who may not
-- change the invoice gets 42501, someone who cannot see it at all learns nothing beyond "not found".
create or replace function public.void_invoice(p_invoice_id uuid) returns void
    language plpgsql
    volatile
    security invoker
    set search_path = ''
as $$
declare
    current_status text;
begin
    select i.status into current_status from public.invoices i where i.id = p_invoice_id;
    if not found then
        raise exception 'invoice_not_found: there is no invoice % that you can see', p_invoice_id
            using errcode = 'P0001';
    end if;
    if current_status = 'void' then
        return;
    end if;
    update public.invoices set status = 'void' where id = p_invoice_id and status <> 'void';
    -- Nothing updated: either someone voided it meanwhile (fine) or the policies refused us.
    if not found and not exists (select 1 from public.invoices i where i.id = p_invoice_id and i.status = 'void') then
        raise exception 'invoice_not_permitted: you may not change invoice %', p_invoice_id
            using errcode = '42501';
    end if;
end
$$;
revoke all on function public.void_invoice(uuid) from public, anon;
grant execute on function public.void_invoice(uuid) to authenticated, service_role;

alter table public.invoice_templates enable row level security;
alter table public.invoices enable row level security;
alter table public.invoice_lines enable row level security;
alter table public.invoice_entries enable row level security;
alter table public.invoice_trips enable row level security;

revoke all on public.invoice_templates, public.invoices, public.invoice_lines, public.invoice_entries,
    public.invoice_trips, public.unbilled_time_entries from public, anon;
grant select, insert, update, delete on public.invoice_templates, public.invoices, public.invoice_lines,
    public.invoice_entries, public.invoice_trips to authenticated;
grant all on public.invoice_templates, public.invoices, public.invoice_lines, public.invoice_entries,
    public.invoice_trips to service_role;
grant select on public.unbilled_time_entries to authenticated, service_role;
